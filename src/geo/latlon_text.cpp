// geo/latlon_text.cpp - degrees into their text forms and out of them.
#include "geo/latlon_text.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

#include "core/number_text.h"
#include "core/typed_number.h"
#include "platform/text1252.h"

namespace {

// The letters and sizes in which latitudes and longitudes differ.
struct Axis {
    char Positive;
    char Negative;
    std::size_t Degree_Digits;
    Double Limit;
};
constexpr Axis Lat_Axis{'N', 'S', 2, 90.0};
constexpr Axis Lon_Axis{'E', 'W', 3, 180.0};

char Letter(Double Value, const Axis& A) {
    return Value < 0.0 ? A.Negative : A.Positive;
}

// A whole number with at least Min_Digits digits.
std::string Whole_Text(Long X, std::size_t Min_Digits) {
    const std::string Text = std::to_string(X);
    const std::size_t Zeros = Min_Digits - std::min(Min_Digits, Text.size());
    return std::string(Zeros, '0') + Text;
}

// A number, not negative, with four decimals and at least Min_Digits digits before them.
// std::to_chars rounds a half to even, the mask upwards. The halves that a Double can hold
// behind four decimals are the odd multiples of 1/32; any value above one rounds up.
std::string Masked_Text(Double X, std::size_t Min_Digits) {
    constexpr std::size_t Decimals = 5;  // the point is one of them
    if (std::fmod(X * 32.0, 2.0) == 1.0) X = std::nextafter(X, 2.0 * X);
    std::array<char, 400> Buffer;  // the largest Double has 309 digits
    const auto End =
        std::to_chars(Buffer.data(), Buffer.data() + Buffer.size(), X, std::chars_format::fixed, 4);
    const std::string Text(Buffer.data(), End.ptr);
    const std::size_t Least = Min_Digits + Decimals;
    return std::string(Least - std::min(Least, Text.size()), '0') + Text;
}

std::string Seconds_Text(Double Value, const Axis& A) {
    const Double All = std::fabs(Value);
    const Long Degrees = Fix_Lng(All);
    Double Seconds = (All - Degrees) * 3600.0;
    const Long Minutes = Fix_Lng(Seconds / 60.0);
    Seconds = Seconds - Minutes * 60.0;
    return Letter(Value, A) + Whole_Text(Degrees, A.Degree_Digits) + ":" + Whole_Text(Minutes, 2) +
           ":" + Masked_Text(Seconds, 2);
}

std::string Minutes_Text(Double Value, const Axis& A) {
    const Double All = std::fabs(Value) * 60.0;
    const Long Nearest = Round_Lng(All) % 60;
    Long Degrees = Round_Lng((All - Nearest) / 60.0);
    Double Minutes = All - Degrees * 60.0;
    if (Minutes < 0.0) {
        Minutes = Minutes + 60.0;
        Degrees = Degrees - 1;
    }
    return Letter(Value, A) + Whole_Text(Degrees, 1) + "*" + Masked_Text(Minutes, 1) + "'";
}

bool Is_Digit(char C) {
    return '0' <= C && C <= '9';
}

// Taking from 0 keeps a 0 of the southern or western half from becoming -0.
Double With_Sign(Double Value, bool Positive) {
    return Positive ? Value : 0.0 - Value;
}

constexpr Degrees_Read Refused{0.0, 1};

// Cuts the field before the next ":" off Rest; it must not be empty.
bool Cut_Field(std::string_view& Rest, std::string_view& Field) {
    const std::size_t At = Rest.find(':');
    if (At == std::string_view::npos || At == 0) return false;
    Field = Rest.substr(0, At);
    Rest.remove_prefix(At + 1);
    return true;
}

bool Up_To_60(Double X) {
    return 0.0 <= X && X <= 60.0;
}

Degrees_Read Read_Seconds_Text(std::string_view Text, const Axis& A) {
    Text = Trim(Text);
    if (Text.empty()) return Refused;
    const char First = Text.front();
    if (First != A.Positive && First != A.Negative) return Refused;
    Text.remove_prefix(1);
    if (Text.empty()) return {};

    std::string_view Field;
    if (!Cut_Field(Text, Field)) return Refused;
    const Double Degrees = Val(Field);
    if (!(std::fabs(Degrees) <= A.Limit)) return Refused;
    if (!Cut_Field(Text, Field)) return Refused;
    const Double Minutes = Val(Field);
    if (!Up_To_60(Minutes)) return Refused;
    const auto Seconds = Typed_Number(Text, {.Min = 0.0, .Max = 60.0});
    if (!Seconds) return Refused;

    const Double Value = Round_Degrees(Degrees + Minutes / 60.0 + *Seconds / 3600.0);
    return {With_Sign(Value, First == A.Positive), 0};
}

Degrees_Read Read_Igc(std::string_view Text, const Axis& A) {
    Text = Trim(Text);
    const std::size_t Digits = A.Degree_Digits;
    if (Text.size() != Digits + 6) return Refused;
    const char Last = Text.back();
    Text.remove_suffix(1);
    if (Last != A.Positive && Last != A.Negative) return Refused;
    if (!std::all_of(Text.begin(), Text.end(), Is_Digit)) return Refused;
    const Double Value = Val(Text.substr(0, Digits)) + Val(Text.substr(Digits, 2)) / 60.0 +
                         Val(Text.substr(Digits + 2)) / 60000.0;
    return {With_Sign(Value, Last == A.Positive), 0};
}

// What Minutes_Text writes.
Degrees_Read Read_Minutes_Text(std::string_view Text, const Axis& A) {
    const std::size_t Star = Text.find('*');
    if (Star == std::string_view::npos || !Text.ends_with('\'')) return Refused;
    if (Text.front() != A.Positive && Text.front() != A.Negative) return Refused;
    const auto Degrees = Typed_Number(Text.substr(1, Star - 1), {.Min = 0.0, .Max = A.Limit});
    const auto Minutes =
        Typed_Number(Text.substr(Star + 1, Text.size() - Star - 2), {.Min = 0.0, .Max = 60.0});
    if (!Degrees || !Minutes) return Refused;
    return {With_Sign(*Degrees + *Minutes / 60.0, Text.front() == A.Positive), 0};
}

Degrees_Typed Read_Typed(std::string_view Text, const Axis& A) {
    Text = Trim(Text);
    if (!Text.empty() && Upper_1252(Text.front()) >= 'A' && Upper_1252(Text.front()) <= 'Z') {
        const auto [Deg, Err] = Read_Seconds_Text(Text, A);
        return {Deg, Shown_Number(Deg), Err};
    }
    const auto Deg = Typed_Number(Text, {.Min = -A.Limit, .Max = A.Limit});
    if (!Deg) return {0.0, {}, 1};
    return {*Deg, Seconds_Text(*Deg, A), 0};
}

Degrees_Read Read_Any(std::string_view Text, const Axis& A) {
    Text = Trim(Text);
    Degrees_Read Read = Read_Minutes_Text(Text, A);
    if (Read.Err != 0) Read = Read_Igc(Text, A);
    if (Read.Err != 0) {
        const Degrees_Typed Typed = Read_Typed(Text, A);
        Read = {Typed.Deg, Typed.Err};
    }
    return Read.Err != 0 || std::fabs(Read.Deg) > A.Limit ? Refused : Read;
}

}  // namespace

std::string Lat_To_Text(Double Lat) {
    return Seconds_Text(Lat, Lat_Axis);
}

std::string Lon_To_Text(Double Lon) {
    return Seconds_Text(Lon, Lon_Axis);
}

std::string Lat_To_Text_Min(Double Lat) {
    return Minutes_Text(Lat, Lat_Axis);
}

std::string Lon_To_Text_Min(Double Lon) {
    return Minutes_Text(Lon, Lon_Axis);
}

Degrees_Read Text_To_Lat(std::string_view Text) {
    return Read_Seconds_Text(Text, Lat_Axis);
}

Degrees_Read Text_To_Lon(std::string_view Text) {
    return Read_Seconds_Text(Text, Lon_Axis);
}

Degrees_Read Igc_To_Lat(std::string_view Text) {
    return Read_Igc(Text, Lat_Axis);
}

Degrees_Read Igc_To_Lon(std::string_view Text) {
    return Read_Igc(Text, Lon_Axis);
}

Degrees_Read Any_To_Lat(std::string_view Text) {
    return Read_Any(Text, Lat_Axis);
}

Degrees_Read Any_To_Lon(std::string_view Text) {
    return Read_Any(Text, Lon_Axis);
}

Double Round_Degrees(Double Deg) {
    return Round_Lng(Deg * 1000000.0) / 1000000.0;
}

Degrees_Typed Typed_Lat(std::string_view Text) {
    return Read_Typed(Text, Lat_Axis);
}

Degrees_Typed Typed_Lon(std::string_view Text) {
    return Read_Typed(Text, Lon_Axis);
}
