// simlink/hex_text.cpp - pairs of hexadecimal digits into bytes.
#include "simlink/hex_text.h"

#include <algorithm>
#include <charconv>

std::optional<std::vector<Byte>> Hex_Bytes(std::string_view Text) {
    std::vector<Byte> Bytes(std::min(Text.size() / 2, Most_Hex_Bytes));
    for (Byte& B : Bytes) {
        const char* const Pair = Text.data();
        // A sign is no digit, and the routine takes one.
        if (*Pair == '-' || std::from_chars(Pair, Pair + 2, B, 16).ptr != Pair + 2) return {};
        Text.remove_prefix(2);
    }
    return Bytes;
}
