// core/typed_number.h - numbers as people type them into fields and read them there.
//
// One strict reader serves every field: text that is not wholly a number is refused, where Val
// (number_text.h) would take what stands at its start.
#pragma once

#include <limits>
#include <optional>
#include <string>
#include <string_view>

#include "core/numbers.h"

/// Which numbers a field takes: {.Min = -9999, .Below = 10000}. Limits not given do not limit.
struct Number_Limits {
    Double Min = -std::numeric_limits<Double>::infinity();    // the lowest taken
    Double Above = -std::numeric_limits<Double>::infinity();  // all taken lie above it
    Double Max = std::numeric_limits<Double>::infinity();     // the highest taken
    Double Below = std::numeric_limits<Double>::infinity();   // all taken lie below it
    bool Whole = false;                                       // no fraction
};

/// Whether X is finite and within Limits.
bool Within(Double X, const Number_Limits& Limits);

/// Limits in words, in the program's language: "a whole number from 0 to 63".
std::string Limits_Text(const Number_Limits& Limits);

/// The number that Text is, blanks round it not counted: a sign, digits with at most one point
/// or comma among them, an exponent ("-9999", ".5", "2,5", "1E3"). Nothing for any other text,
/// one beyond a Double included, and for a number outside Limits. "-0" gives 0.
std::optional<Double> Typed_Number(std::string_view Text, const Number_Limits& Limits = {});

/// X as fields and read-outs show it: Num text with a zero before the point, "0.5", "-0.25".
/// A Double keeps 15 significant digits, a Single 7. Nothing for a value that is infinite or
/// undefined.
std::string Shown_Number(Double X);
std::string Shown_Number(Single X);
std::string Shown_Number(Long X);
