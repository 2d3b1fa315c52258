// core/number_text.h - numbers as text, and text as numbers.
//
// Three forms exist. Str text is that of project, reference and settings files: a blank
// stands before a number that is not negative. Num text, that of generated sources, is the
// same without the blank. Val reads both. All are independent of the system's locale.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "core/numbers.h"

/// The characters of one number, held in place.
class Number_Chars {
public:
    operator std::string_view() const { return std::string_view(Text_, Last_).substr(First_); }

private:
    friend Number_Chars Str(Double);
    friend Number_Chars Str(Single);
    friend Number_Chars Str(Long);
    friend Number_Chars Num_Text(Double);
    friend Number_Chars Num_Text(Single);
    friend Number_Chars Num_Text(Long);

    void Put_Whole(Long X);
    void Put_Decimal(Double X, int Digits);

    char Text_[48];
    std::uint32_t First_ = 0;  // 1 when the leading blank is left out
    std::uint32_t Last_ = 0;
};

/// Str text: a blank or "-", then the number with "." as decimal point, without a zero before
/// the point and without trailing zeros. A Double keeps 15 significant digits, a Single 7. It
/// is written plain when at most that many digits stand before the point and behind it, else
/// with an exponent of two digits or more: " 1.5", "-.25", " 1E+15", " 1E-16". -0.0 gives " 0".
/// An infinite or undefined value cannot stand in a file: it stops the program.
Number_Chars Str(Double X);
Number_Chars Str(Single X);
Number_Chars Str(Long X);
inline Number_Chars Str(Int X) {
    return Str(Long{X});
}
inline Number_Chars Str(Byte X) {
    return Str(Long{X});
}

/// Num text: Str text without the leading blank.
Number_Chars Num_Text(Double X);
Number_Chars Num_Text(Single X);
Number_Chars Num_Text(Long X);
inline Number_Chars Num_Text(Int X) {
    return Num_Text(Long{X});
}
inline Number_Chars Num_Text(Byte X) {
    return Num_Text(Long{X});
}

/// The longest number at the start of Text: a sign, digits, a point, an exponent. Blanks are
/// skipped wherever they stand. Text that does not start with a number gives 0, one beyond a
/// Double an infinity. Never fails.
Double Val(std::string_view Text);
