// tests/core/test_typed_number.cpp - what people type into number fields.
#include "core/typed_number.h"

#include <gtest/gtest.h>

#include <cmath>
#include <string>

namespace {

// What a field would show after the text was typed; "refused" without a number.
std::string Taken(std::string_view Text, const Number_Limits& Limits = {}) {
    const auto X = Typed_Number(Text, Limits);
    return X ? Shown_Number(*X) : "refused";
}

TEST(Typed_Number, IsWhollyANumberOrRefused) {
    const struct {
        const char* Typed;
        const char* Shown;
    } Rows[] = {{"12", "12"},    {"  -9999\t", "-9999"}, {"+5", "5"},
                {".5", "0.5"},   {"-,25", "-0.25"},      {"5.", "5"},
                {"2,5", "2.5"},  {"1E3", "1000"},        {"-1.5e-2", "-0.015"},
                {"1e-999", "0"}, {"1E+15", "1E+15"},     {"007", "7"}};
    for (const auto& [Typed, Shown] : Rows) EXPECT_EQ(Taken(Typed), Shown) << Typed;
    for (const char* Typed : {"",
                              " ",
                              "-",
                              ".",
                              ",",
                              "+.",
                              "1 2",
                              "- 5",
                              "--5",
                              "1.2.3",
                              "1.000,5",
                              "12m",
                              "m12",
                              "1e",
                              "1e+",
                              "1e5.5",
                              "e5",
                              "0x10",
                              "nan",
                              "inf",
                              "1e999",
                              "-1e999",
                              "1d3",
                              "5-",
                              "\xA0"
                              "5"})
        EXPECT_EQ(Taken(Typed), "refused") << Typed;
    EXPECT_FALSE(std::signbit(*Typed_Number("-0")));
}

TEST(Typed_Number, KeepsToItsLimits) {
    const Number_Limits Alti{.Min = -9999, .Below = 10000};
    EXPECT_EQ(Taken("-9999", Alti), "-9999");
    EXPECT_EQ(Taken("-9999.001", Alti), "refused");
    EXPECT_EQ(Taken("9999.999", Alti), "9999.999");
    EXPECT_EQ(Taken("10000", Alti), "refused");
    const Number_Limits Largeur{.Above = 1, .Max = 255, .Whole = true};
    EXPECT_EQ(Taken("1", Largeur), "refused");
    EXPECT_EQ(Taken("2.0", Largeur), "2");
    EXPECT_EQ(Taken("2.5", Largeur), "refused");
    EXPECT_EQ(Taken("255", Largeur), "255");
    EXPECT_EQ(Taken("256", Largeur), "refused");
}

}  // namespace
