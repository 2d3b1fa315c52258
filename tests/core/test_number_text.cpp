// tests/core/test_number_text.cpp - roundings, numbers as text and back.
#include "core/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>

#include "core/typed_number.h"
#include "support/rows.h"

namespace {

template <typename T>
std::string Text_Of(T X) {
    return std::string(Str(X));
}

// X as the digits that the C library gives tell it.
Double Rounded(Double X, int Digits) {
    char Text[40];
    std::snprintf(Text, sizeof Text, "%.*e", Digits - 1, X);
    return std::strtod(Text, nullptr);
}

// Doubles of every size, with many or few digits, and halfway between two texts.
Double Odd_Double(std::mt19937_64& Source) {
    const auto Bits = Source(), Kind = Bits % 5;
    const int Size = static_cast<int>(Bits / 8 % 40);
    const Double X = Kind == 0   ? std::bit_cast<Double>(Source())
                     : Kind == 1 ? static_cast<Double>(Source() % 100'000'000) / 1000.0
                     : Kind == 2 ? static_cast<Double>(Source() >> (Bits / 8 % 64))
                     : Kind == 3 ? (static_cast<Double>(Source() >> 14) + 0.5) * 1e-9
                                 : std::ldexp(static_cast<Double>(Source() >> 11), Size - 60);
    return std::isfinite(X) ? X : 0.0;
}

std::string With_Zeros(std::string Text) {
    if (const auto At = Text.find('*'); At != std::string::npos)
        Text.replace(At, 1, std::string(400, '0'));
    return Text;
}

}  // namespace

TEST(Number_Text, WorkedExamples) {
    const auto Of = [](auto Rule) {
        return [Rule](const Row_Cells& C) { return std::string(Rule(Cell_Number(C[0]))); };
    };
    const auto Whole = [](auto Rule) {
        return [Rule](const Row_Cells& C) { return std::to_string(Rule(Cell_Number(C[0]))); };
    };
    Expect_Rows(
        "numbers",
        {{"Str", Of([](Double X) { return Str(X); })},
         {"Str of a Single", Of([](Double X) { return Str(static_cast<Single>(X)); })},
         {"Str of a Long", Of([](Double X) { return Str(static_cast<Long>(X)); })},
         {"Num_Text", Of([](Double X) { return Num_Text(X); })},
         {"Num_Text of a Single", Of([](Double X) { return Num_Text(static_cast<Single>(X)); })},
         {"Num_Text of a Long", Of([](Double X) { return Num_Text(static_cast<Long>(X)); })},
         {"Typed_Number",
          [](const Row_Cells& C) {
              Number_Limits L;
              for (std::size_t At = 1; At + 1 < C.size(); At += 2) {
                  const Double Value = Cell_Number(C[At + 1]);
                  if (C[At] == "whole") L.Whole = true;
                  for (auto [Name, Limit] : {std::pair{"min", &L.Min},
                                             {"above", &L.Above},
                                             {"max", &L.Max},
                                             {"below", &L.Below}})
                      if (C[At] == Name) *Limit = Value;
              }
              const auto X = Typed_Number(C[0], L);
              return X ? Shown_Number(*X) : "refused";
          }},
         {"Val", [](const Row_Cells& C) { return Number_Cell(Val(With_Zeros(C[0]))); }},
         {"Fix_Lng", Whole(Fix_Lng)},
         {"Round_Lng", Whole(Round_Lng)},
         {"Round_Int", Whole(Round_Int)}});
}

TEST(Number_Text, AnyNumberAsTheCLibraryHasIt) {
    std::mt19937_64 Source(1);
    for (int N = 0; N < 200'000; ++N) {
        const Double X = Odd_Double(Source);
        const std::string Text = Text_Of(X);
        ASSERT_EQ(Val(Text), Rounded(X, 15)) << std::hexfloat << X;
        const Single S = static_cast<Single>(X);
        ASSERT_TRUE(!std::isfinite(S) || Val(Text_Of(S)) == Rounded(S, 7)) << std::hexfloat << S;
        const Double Back = Val(Text);  // the largest ones round up
        ASSERT_TRUE(!std::isfinite(Back) || Text_Of(Back) == Text) << Text;
        char Read[64];
        std::snprintf(Read, sizeof Read, "%.*g", static_cast<int>(Source() % 20) + 1, X);
        ASSERT_EQ(Val(Read), std::strtod(Read, nullptr)) << Read;
    }
}

TEST(Number_Text, AnUndefinedNumberIsAFaultOfTheProgram) {
    EXPECT_DEATH(Str(std::numeric_limits<Double>::infinity()), "finite");
    EXPECT_DEATH(Str(std::numeric_limits<Single>::quiet_NaN()), "finite");
}
