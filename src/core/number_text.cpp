// core/number_text.cpp - decimal digits out of Doubles and back.
#include "core/number_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <iterator>
#include <limits>
#include <string>
#include <system_error>

#include "core/check.h"

namespace {

// A positive number as 0.D1 D2 D3... times 10 to the power Point, without trailing zeros.
struct Decimal {
    char Digit[32];
    int Nb = 0;
    int Point = 0;
};

// Reads "d.ddddde[+-]dd" as std::to_chars writes it.
Decimal Split_Scientific(const char* First, const char* Last) {
    Decimal D;
    const char* P = First;
    for (; P != Last && *P != 'e'; ++P)
        if (*P != '.') D.Digit[D.Nb++] = *P;
    int Exponent = 0;
    if (P != Last) {
        const bool Negative = P[1] == '-';
        std::from_chars(P + 2, Last, Exponent);
        if (Negative) Exponent = -Exponent;
    }
    while (D.Nb > 1 && D.Digit[D.Nb - 1] == '0') --D.Nb;
    D.Point = Exponent + 1;
    return D;
}

// Keeps the first Max_Digits digits; Up adds one to the last of them.
void Cut(Decimal& D, int Max_Digits, bool Up) {
    D.Nb = Max_Digits;
    if (Up) {
        while (D.Nb > 0 && D.Digit[D.Nb - 1] == '9') --D.Nb;
        if (D.Nb > 0) {
            ++D.Digit[D.Nb - 1];
        } else {
            D.Digit[D.Nb++] = '1';
            ++D.Point;
        }
    }
    while (D.Nb > 1 && D.Digit[D.Nb - 1] == '0') --D.Nb;
}

Decimal Scientific(Double X) {
    std::array<char, 48> Buffer;
    const auto End = std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), X,
                                   std::chars_format::scientific);
    return Split_Scientific(Buffer.data(), End.ptr);
}

Decimal Scientific(Double X, int Max_Digits) {
    std::array<char, 48> Buffer;
    const auto End = std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), X,
                                   std::chars_format::scientific, Max_Digits - 1);
    return Split_Scientific(Buffer.data(), End.ptr);
}

// X, above 0, rounded to Max_Digits digits, at most 15. The shortest text that reads back as X
// is quicker to find. When it is short enough it is the same decimal, since neighbours of 15
// digits lie further apart than neighbouring Doubles, except among the smallest of them. When
// it is longer, rounding it is rounding X: a halfway point between the two would be a shorter
// or nearer text of X. Only where it is a halfway point itself must X be looked at.
Decimal Digits_Of(Double X, int Max_Digits) {
    if (X < std::numeric_limits<Double>::min()) return Scientific(X, Max_Digits);
    Decimal D = Scientific(X);
    if (D.Nb <= Max_Digits) return D;
    const char Next = D.Digit[Max_Digits];
    if (Next == '5' && D.Nb == Max_Digits + 1) return Scientific(X, Max_Digits);
    Cut(D, Max_Digits, Next >= '5');
    return D;
}

char* Put_Digits(char* Out, const Decimal& D, int From, int To) {
    for (int I = From; I < To; ++I) *Out++ = I < D.Nb ? D.Digit[I] : '0';
    return Out;
}

char* Put_Plain(char* Out, const Decimal& D) {
    if (D.Point > 0) Out = Put_Digits(Out, D, 0, D.Point);
    if (D.Nb <= D.Point) return Out;
    *Out++ = '.';
    for (int I = D.Point; I < 0; ++I) *Out++ = '0';
    return Put_Digits(Out, D, D.Point > 0 ? D.Point : 0, D.Nb);
}

char* Put_Exponent(char* Out, const Decimal& D) {
    *Out++ = D.Digit[0];
    if (D.Nb > 1) {
        *Out++ = '.';
        Out = Put_Digits(Out, D, 1, D.Nb);
    }
    const int Exponent = D.Point - 1;
    *Out++ = 'E';
    *Out++ = Exponent < 0 ? '-' : '+';
    const int Size = Exponent < 0 ? -Exponent : Exponent;
    if (Size < 10) *Out++ = '0';
    return std::to_chars(Out, Out + 4, Size).ptr;
}

bool Is_Digit(char C) {
    return C >= '0' && C <= '9';
}

bool Is_Blank(char C) {
    return C == ' ' || C == '\t';
}

// Whether a number that std::from_chars could not hold is too large rather than too small:
// the power of ten of its first digit that is not 0 tells.
bool Is_Too_Large(const char* First, const char* Last) {
    long long Place = 0;
    bool Seen = false;
    bool Behind_Point = false;
    const char* P = First;
    for (; P != Last && (Is_Digit(*P) || *P == '.'); ++P) {
        if (*P == '.') Behind_Point = true;
        if (*P == '.') continue;
        Seen = Seen || *P != '0';
        if (Seen && !Behind_Point) ++Place;
        if (!Seen && Behind_Point) --Place;
    }
    if (P == Last) return Place > 0;
    const bool Negative = P + 1 != Last && P[1] == '-';
    P += P + 1 != Last && (P[1] == '-' || P[1] == '+') ? 2 : 1;
    int Exponent = 0;
    if (std::from_chars(P, Last, Exponent).ec == std::errc::result_out_of_range) return !Negative;
    return Place + (Negative ? -Exponent : Exponent) > 0;
}

// A number without blanks and without a sign.
Double Read_Magnitude(const char* First, const char* Last) {
    if (First == Last || !(Is_Digit(*First) || *First == '.')) return 0.0;
    Double X = 0.0;
    const auto End = std::from_chars(First, Last, X);
    if (End.ec == std::errc::result_out_of_range)
        return Is_Too_Large(First, End.ptr) ? std::numeric_limits<Double>::infinity() : 0.0;
    return End.ec == std::errc() ? X : 0.0;
}

}  // namespace

void Number_Chars::Put_Whole(Long X) {
    char* Out = Text_;
    if (X >= 0) *Out++ = ' ';
    Last_ = static_cast<std::uint32_t>(std::to_chars(Out, Text_ + sizeof Text_, X).ptr - Text_);
}

void Number_Chars::Put_Decimal(Double X, int Digits) {
    Check(std::isfinite(X), "a number that is written is finite");
    char* Out = Text_;
    *Out++ = X < 0.0 ? '-' : ' ';
    if (X == 0.0) {
        *Out++ = '0';
    } else {
        const Decimal D = Digits_Of(std::fabs(X), Digits);
        const bool Plain = D.Point <= Digits && D.Nb - D.Point <= Digits;
        Out = Plain ? Put_Plain(Out, D) : Put_Exponent(Out, D);
    }
    Last_ = static_cast<std::uint32_t>(Out - Text_);
}

Number_Chars Str(Double X) {
    Number_Chars N;
    N.Put_Decimal(X, 15);
    return N;
}

Number_Chars Str(Single X) {
    Number_Chars N;
    N.Put_Decimal(X, 7);
    return N;
}

Number_Chars Str(Long X) {
    Number_Chars N;
    N.Put_Whole(X);
    return N;
}

Number_Chars Num_Text(Double X) {
    Number_Chars N = Str(X);
    N.First_ = N.Text_[0] == ' ';
    return N;
}

Number_Chars Num_Text(Single X) {
    Number_Chars N = Str(X);
    N.First_ = N.Text_[0] == ' ';
    return N;
}

Number_Chars Num_Text(Long X) {
    Number_Chars N = Str(X);
    N.First_ = N.Text_[0] == ' ';
    return N;
}

Double Val(std::string_view Text) {
    while (!Text.empty() && Is_Blank(Text.front())) Text.remove_prefix(1);
    std::string Joined;
    if (std::any_of(Text.begin(), Text.end(), Is_Blank)) {
        std::remove_copy_if(Text.begin(), Text.end(), std::back_inserter(Joined), Is_Blank);
        Text = Joined;
    }
    if (Text.empty()) return 0.0;
    const bool Negative = Text.front() == '-';
    if (Negative || Text.front() == '+') Text.remove_prefix(1);
    const Double X = Read_Magnitude(Text.data(), Text.data() + Text.size());
    return Negative ? -X : X;
}
