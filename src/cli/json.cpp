// cli/json.cpp - quoting, and numbers that come back as they were.
#include "cli/json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

#include "platform/text1252.h"

std::string Json_Text(std::string_view Text) {
    std::string Json = "\"";
    for (const char& C : Text) {
        if (C == '"' || C == '\\') {
            Json += '\\';
            Json += C;
        } else if (Is_Control(C)) {
            std::array<char, 8> Escape;
            std::snprintf(Escape.data(), Escape.size(), "\\u%04x", static_cast<unsigned char>(C));
            Json += Escape.data();
        } else {
            Json += To_Utf8({&C, 1});
        }
    }
    return Json + '"';
}

std::string Json_Number(Double X) {
    if (!std::isfinite(X)) return "null";
    std::array<char, 40> Text;
    return {Text.data(), std::to_chars(Text.data(), Text.data() + Text.size(), X).ptr};
}

Json_Line& Json_Line::Raw(std::string_view Key, const std::string& Value) {
    Text_ += (Text_.empty() ? "" : ", ") + Json_Text(Key) + ": " + Value;
    return *this;
}
