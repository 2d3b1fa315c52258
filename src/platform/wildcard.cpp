// platform/wildcard.cpp - patterns with "*" and "?".
#include "platform/wildcard.h"

#include <cstddef>

#include "platform/text1252.h"

bool Wildcard_Match(std::string_view Text, std::string_view Pattern) {
    constexpr std::size_t None = static_cast<std::size_t>(-1);
    std::size_t T = 0, P = 0;
    // On a mismatch only the last "*" has to take one character more: an earlier one could gain
    // nothing that the last can't take.
    std::size_t Star = None, Star_T = 0;
    while (T < Text.size()) {
        if (P < Pattern.size() && Pattern[P] == '*') {
            Star = P++;
            Star_T = T;
        } else if (P < Pattern.size() &&
                   (Pattern[P] == '?' || Upper_1252(Pattern[P]) == Upper_1252(Text[T]))) {
            ++P;
            ++T;
        } else if (Star != None) {
            P = Star + 1;
            T = ++Star_T;
        } else {
            return false;
        }
    }
    while (P < Pattern.size() && Pattern[P] == '*') ++P;
    return P == Pattern.size();
}
