// platform/posix/locale.cpp - the language of messages, by the environment.
#include "platform/locale.h"

#include <cstdlib>
#include <string_view>

std::string System_Language() {
    for (const char* Variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        const char* Value = std::getenv(Variable);
        if (Value == nullptr || *Value == '\0') continue;
        const std::string_view Locale = Value;
        if (Locale == "C" || Locale == "POSIX" || Locale.starts_with("C.")) return {};
        return std::string(Locale.substr(0, 2));
    }
    return {};
}
