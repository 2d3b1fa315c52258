// core/typed_number.cpp - typed text into numbers, all of it or nothing.
#include "core/typed_number.h"

#include <algorithm>
#include <cmath>

#include "core/number_text.h"
#include "core/program.h"
#include "platform/text1252.h"

namespace {

// Takes the digits at the head of Text off it, and says how many there were.
std::size_t Cut_Digits(std::string_view& Text) {
    const auto Behind =
        std::find_if(Text.begin(), Text.end(), [](char C) { return C < '0' || C > '9'; });
    const auto Nb = static_cast<std::size_t>(Behind - Text.begin());
    Text.remove_prefix(Nb);
    return Nb;
}

// Takes one of Chars off the head of Text, if one is there.
bool Cut_One_Of(std::string_view& Text, std::string_view Chars) {
    if (Text.empty() || Chars.find(Text.front()) == std::string_view::npos) return false;
    Text.remove_prefix(1);
    return true;
}

bool Is_Number(std::string_view Text) {
    Cut_One_Of(Text, "+-");
    std::size_t Digits = Cut_Digits(Text);
    if (Cut_One_Of(Text, ".")) Digits += Cut_Digits(Text);
    if (Digits == 0) return false;
    if (Cut_One_Of(Text, "eE")) {
        Cut_One_Of(Text, "+-");
        if (Cut_Digits(Text) == 0) return false;
    }
    return Text.empty();
}

// What only keeps a value within its type says nothing to a user.
bool Is_Said(Double Limit) {
    constexpr Double Far_Off = 1e30;
    return std::fabs(Limit) < Far_Off;
}

std::string Lower_End(const Number_Limits& L) {
    const bool Is_Open = Is_Said(L.Above) && L.Above >= L.Min;
    if (Is_Open && !L.Whole)
        return In_Language(" above ", " au-dessus de ") + Shown_Number(L.Above);
    if (!Is_Open && !Is_Said(L.Min)) return {};
    return In_Language(" from ", " de ") + Shown_Number(Is_Open ? L.Above + 1 : L.Min);
}

std::string Upper_End(const Number_Limits& L, bool Is_Second) {
    const bool Is_Open = Is_Said(L.Below) && L.Below <= L.Max;
    if (Is_Open && !L.Whole)
        return std::string(Is_Second ? In_Language(" and", " et") : "") +
               In_Language(" below ", " au-dessous de ") + Shown_Number(L.Below);
    if (!Is_Open && !Is_Said(L.Max)) return {};
    return In_Language(" to ", " \xE0 ") + Shown_Number(Is_Open ? L.Below - 1 : L.Max);
}

std::string With_Zero(std::string_view Num) {
    std::string Text(Num);
    const std::size_t First = Text.starts_with('-') ? 1 : 0;
    if (Text[First] == '.') Text.insert(First, 1, '0');
    return Text;
}

}  // namespace

bool Within(Double X, const Number_Limits& Limits) {
    return std::isfinite(X) && Limits.Min <= X && Limits.Above < X && X <= Limits.Max &&
           X < Limits.Below && (!Limits.Whole || X == std::trunc(X));
}

std::string Limits_Text(const Number_Limits& Limits) {
    const std::string Lower = Lower_End(Limits);
    return (Limits.Whole ? In_Language("a whole number", "un nombre entier")
                         : In_Language("a number", "un nombre")) +
           Lower + Upper_End(Limits, !Lower.empty());
}

std::optional<Double> Typed_Number(std::string_view Text, const Number_Limits& Limits) {
    std::string Pointed(Trim(Text));
    std::replace(Pointed.begin(), Pointed.end(), ',', '.');
    if (!Is_Number(Pointed)) return {};
    const Double X = Val(Pointed) + 0.0;  // -0 becomes 0
    if (!Within(X, Limits)) return {};
    return X;
}

std::string Shown_Number(Double X) {
    if (!std::isfinite(X)) return {};
    return With_Zero(Num_Text(X));
}

std::string Shown_Number(Single X) {
    return With_Zero(Num_Text(X));
}

std::string Shown_Number(Long X) {
    return std::string(Num_Text(X));
}
