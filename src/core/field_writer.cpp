// core/field_writer.cpp - values and texts in the form that a file can hold.
#include "core/field_writer.h"

#include <algorithm>
#include <cmath>

Number_Chars Writable(Double X) {
    // Beyond it, the 15 digits of a Double could read back as infinite.
    constexpr Double Largest = 1.79769313486231E+308;
    return Str(std::isfinite(X) ? std::clamp(X, -Largest, Largest) : 0.0);
}

Number_Chars Writable(Single X) {
    return Str(std::isfinite(X) ? X : 0.0F);
}

std::string Without_Marks(std::string_view Text) {
    std::string Clean(Text);
    for (char& C : Clean) {
        if (C == '"') C = '\'';
        if (C == '\r' || C == '\n') C = ' ';
    }
    return Clean;
}
