// platform/win32/locale.cpp - the language of the user's settings.
#include "platform/locale.h"

#include <windows.h>

#include <array>

std::string System_Language() {
    std::array<char, 16> Name{};
    const int Length = GetLocaleInfoA(LOCALE_USER_DEFAULT, LOCALE_SISO639LANGNAME, Name.data(),
                                      static_cast<int>(Name.size()));
    return Length > 0 ? std::string(Name.data()) : std::string();
}
