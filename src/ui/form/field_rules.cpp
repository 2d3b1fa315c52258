// ui/form/field_rules.cpp - rules that many fields have.
#include "ui/form/field_rules.h"

#include <utility>

#include "core/program.h"

Field_Rule Number_Rule(std::function<std::string()> Get, std::function<void(Double)> Set,
                       const Number_Limits& Limits) {
    const auto Accept = [Set = std::move(Set), Limits](const std::string& Text) {
        const std::optional<Double> X = Typed_Number(Text, Limits);
        if (X) Set(*X);
        return X.has_value();
    };
    return {.Accept = Accept, .Held = std::move(Get), .Allowed = [Limits] {
                return Limits_Text(Limits);
            }};
}

Field_Rule Text_Rule(std::string& Target, std::function<bool(const std::string& Text)> Fits,
                     std::function<std::string()> Allowed) {
    const auto Accept = [&Target, Fits = std::move(Fits)](const std::string& Text) {
        if (Fits && !Fits(Text)) return false;
        Target = Text;
        return true;
    };
    return {.Accept = Accept, .Held = [&Target] { return Target; }, .Allowed = std::move(Allowed)};
}

std::string File_Or_None() {
    return In_Language("the path of a file that is there, or nothing",
                       "le chemin d'un fichier pr\xE9sent, ou rien");
}

std::string Dir_That_Is_There() {
    return In_Language("the path of a directory that is there",
                       "le chemin d'un r\xE9pertoire pr\xE9sent");
}
