// ui/form/field_rules.cpp - rules that many fields have.
#include "ui/form/field_rules.h"

#include <utility>

Field_Rule Number_Rule(std::function<std::string()> Get, std::function<void(Double)> Set,
                       const Number_Limits& Limits) {
    const auto Accept = [Set = std::move(Set), Limits](const std::string& Text) {
        const std::optional<Double> X = Typed_Number(Text, Limits);
        if (X) Set(*X);
        return X.has_value();
    };
    return {.Accept = Accept, .Held = std::move(Get)};
}

Field_Rule Text_Rule(std::string& Target, std::function<bool(const std::string& Text)> Fits) {
    const auto Accept = [&Target, Fits = std::move(Fits)](const std::string& Text) {
        if (Fits && !Fits(Text)) return false;
        Target = Text;
        return true;
    };
    return {.Accept = Accept, .Held = [&Target] { return Target; }};
}
