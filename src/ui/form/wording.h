// ui/form/wording.h - one text in the program's two languages.
#pragma once

#include <string>
#include <string_view>

/// Both wordings, code page 1252, or neither. Texts that are the same in both are given twice.
struct Wording {
    const char* US = "";
    const char* FR = "";

    bool Is_Set() const { return *US != '\0' || *FR != '\0'; }
    /// The wording of Lang: "US" is English, anything else French.
    const char* In(std::string_view Lang) const { return Lang == "US" ? US : FR; }
};
