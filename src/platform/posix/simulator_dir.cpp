// platform/posix/simulator_dir.cpp - the simulator by Wine's registry.
#include "platform/simulator_dir.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <fstream>
#include <optional>
#include <string_view>

#include "platform/posix/user_dirs.h"
#include "platform/text1252.h"

namespace {

// As Wine writes them; a 32-bit program on a 64-bit system is sent to the second.
constexpr std::array<std::string_view, 2> Sections = {
    R"([Software\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0])",
    R"([Software\\Wow6432Node\\Microsoft\\Microsoft Games\\Flight Simulator\\9.0])"};
constexpr std::string_view Value_Head = R"("EXE Path"=")";

bool Starts_With_No_Case(std::string_view Text, std::string_view Head) {
    return Equal_No_Case(Text.substr(0, Head.size()), Head);
}

bool Is_Wanted_Section(std::string_view Line) {
    for (const std::string_view Section : Sections)
        if (Starts_With_No_Case(Line, Section)) return true;  // a time stands behind it
    return false;
}

// The four hexadecimal digits at most that Text begins with, taken off it, as UTF-8.
std::string Take_Hex(std::string_view& Text) {
    unsigned Code = 0;
    const std::string_view Digits = Text.substr(0, 4);
    const auto [Stop, Error] =
        std::from_chars(Digits.data(), Digits.data() + Digits.size(), Code, 16);
    if (Error != std::errc{}) return "x";
    Text.remove_prefix(static_cast<std::size_t>(Stop - Digits.data()));
    if (Code < 0x80) return {static_cast<char>(Code)};
    if (Code < 0x800)
        return {static_cast<char>(0xC0 | (Code >> 6)), static_cast<char>(0x80 | (Code & 0x3F))};
    return {static_cast<char>(0xE0 | (Code >> 12)), static_cast<char>(0x80 | ((Code >> 6) & 0x3F)),
            static_cast<char>(0x80 | (Code & 0x3F))};
}

// The text up to its closing quote, as code page 1252. A path needs no other escapes.
std::optional<std::string> Unescaped(std::string_view Text) {
    std::string Utf8;
    while (!Text.empty() && Text.front() != '"') {
        const char C = Text.front();
        Text.remove_prefix(1);
        if (C != '\\' || Text.empty()) {
            Utf8 += C;
            continue;
        }
        const char Escaped = Text.front();
        Text.remove_prefix(1);
        if (Escaped == 'x')
            Utf8 += Take_Hex(Text);
        else
            Utf8 += Escaped;
    }
    return Text.empty() ? std::nullopt : From_Utf8(Utf8);
}

}  // namespace

std::string Registered_Simulator_Dir() {
    const auto Prefix = Wine_Prefix();
    if (!Prefix) return "";
    std::ifstream In(*Prefix / "system.reg", std::ios::binary);
    bool Wanted = false;
    for (std::string Line; std::getline(In, Line);) {
        if (Line.starts_with('[')) {
            Wanted = Is_Wanted_Section(Line);
        } else if (Wanted && Starts_With_No_Case(Line, Value_Head)) {
            const auto Value = Unescaped(std::string_view(Line).substr(Value_Head.size()));
            if (Value && !Value->empty()) return *Value;
        }
    }
    return "";
}
