// ui/form/field_rules.h - rules that many fields have: a number within limits, a text.
#pragma once

#include <algorithm>
#include <functional>
#include <limits>
#include <string>
#include <type_traits>

#include "core/number_text.h"
#include "core/typed_number.h"
#include "ui/form/form.h"

/// A number that Get gives as the field shows it and Set takes.
Field_Rule Number_Rule(std::function<std::string()> Get, std::function<void(Double)> Set,
                       const Number_Limits& Limits = {});

/// A number held in Target, which must outlive the form. What Target cannot hold is refused; in a
/// whole one a fraction that Limits allow is rounded half to even.
template <typename T>
requires std::is_arithmetic_v<T> Field_Rule Number_Rule(T& Target, Number_Limits Limits = {}) {
    Limits.Min = std::max(Limits.Min, static_cast<Double>(std::numeric_limits<T>::lowest()));
    Limits.Max = std::min(Limits.Max, static_cast<Double>(std::numeric_limits<T>::max()));
    const auto Set = [&Target](Double X) {
        if constexpr (std::is_integral_v<T>)
            Target = static_cast<T>(Round_Lng(X));
        else
            Target = static_cast<T>(X);
    };
    return Number_Rule([&Target] { return Shown_Number(Target); }, Set, Limits);
}

/// A text held in Target, which must outlive the form. Fits, if it is given, refuses others.
/// Allowed says which.
Field_Rule Text_Rule(std::string& Target, std::function<bool(const std::string& Text)> Fits = {},
                     std::function<std::string()> Allowed = {});

/// What a field takes that names a file, or none.
std::string File_Or_None();
/// What one takes that names a directory.
std::string Dir_That_Is_There();
