// cli/json.h - texts and numbers as JSON has them.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// Text of code page 1252 in double quotes, UTF-8.
std::string Json_Text(std::string_view Text);
/// "null" for what is no finite number.
std::string Json_Number(Double X);

/// An object on one line, built one key at a time.
class Json_Line {
public:
    Json_Line& Raw(std::string_view Key, const std::string& Value);
    Json_Line& Put(std::string_view Key, std::string_view Text) {
        return Raw(Key, Json_Text(Text));
    }
    std::string Done() const { return "{" + Text_ + "}\n"; }

private:
    std::string Text_;
};
