// tests/core/test_number_text.cpp - numbers as text and back.
#include "core/number_text.h"

#include <gtest/gtest.h>

#include <bit>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

namespace {

constexpr Double Infinite = std::numeric_limits<Double>::infinity();

std::string Str_Of(Double X) {
    return std::string(Str(X));
}

// The plain rule of Str text on the digits that the C library gives.
std::string Plain_Str(Double X, int Digits) {
    char Text[40];
    std::snprintf(Text, sizeof Text, "%.*e", Digits - 1, std::fabs(X));
    const std::string Whole(Text);
    const std::size_t E = Whole.find('e');
    const int Point = std::atoi(Whole.c_str() + E + 1) + 1;  // digits before the point
    std::string D = Whole.substr(0, 1) + Whole.substr(2, E - 2);
    while (D.size() > 1 && D.back() == '0') D.pop_back();
    const int Nb = static_cast<int>(D.size());
    const std::string Sign = X < 0 ? "-" : " ";
    if (D == "0") return " 0";
    if (Point > Digits || Nb - Point > Digits) {
        const int Exponent = Point - 1;
        std::snprintf(Text, sizeof Text, "E%c%02d", Exponent < 0 ? '-' : '+', std::abs(Exponent));
        return Sign + D.substr(0, 1) + (Nb > 1 ? "." + D.substr(1) : "") + Text;
    }
    if (Point <= 0) return Sign + "." + std::string(static_cast<std::size_t>(-Point), '0') + D;
    if (Nb <= Point) return Sign + D + std::string(static_cast<std::size_t>(Point - Nb), '0');
    return Sign + D.substr(0, static_cast<std::size_t>(Point)) + "." +
           D.substr(static_cast<std::size_t>(Point));
}

// Doubles of every size, with many or few digits, and halfway between two texts.
Double Odd_Double(std::mt19937_64& Source) {
    for (;;) {
        const auto Bits = Source();
        Double X = std::bit_cast<Double>(Source());
        switch (Bits % 5) {
            case 0:
                break;
            case 1:
                X = static_cast<Double>(Source() % 100'000'000) / 1000.0;
                break;
            case 2:
                X = static_cast<Double>(Source() >> (Bits / 8 % 64));
                break;
            case 3:
                X = (static_cast<Double>(Source() >> 14) + 0.5) * std::pow(10.0, -9.0);
                break;
            default:
                X = std::ldexp(static_cast<Double>(Source() >> 11),
                               static_cast<int>(Bits / 8 % 40) - 60);
        }
        if (std::isfinite(X)) return X;
    }
}

}  // namespace

TEST(Number_Text, TheFormsOfStr) {
    EXPECT_EQ(Str_Of(0.0), " 0");
    EXPECT_EQ(Str_Of(-0.0), " 0");
    EXPECT_EQ(Str_Of(12.0), " 12");
    EXPECT_EQ(Str_Of(-0.25), "-.25");
    EXPECT_EQ(Str_Of(1.5), " 1.5");
    EXPECT_EQ(Str_Of(0.1 + 0.2), " .3");
    EXPECT_EQ(Str_Of(1.0 / 3.0), " .333333333333333");
    EXPECT_EQ(Str_Of(2.0 / 3.0), " .666666666666667");
    EXPECT_EQ(Str_Of(.1234567890123456), " .123456789012346");
    EXPECT_EQ(Str_Of(9.99999999999999999), " 10") << "rounding reaches the next power of ten";
    EXPECT_EQ(Str_Of(999999999999999.0), " 999999999999999");
    EXPECT_EQ(Str_Of(999999999999999.9), " 1E+15");
    EXPECT_EQ(Str_Of(1E15), " 1E+15");
    EXPECT_EQ(Str_Of(1E-15), " .000000000000001");
    EXPECT_EQ(Str_Of(-1E-16), "-1E-16");
    EXPECT_EQ(Str_Of(.0123456789012345), " 1.23456789012345E-02") << "16 places behind the point";
    EXPECT_EQ(Str_Of(.012345678901234), " .012345678901234");
    EXPECT_EQ(Str_Of(-1.7976931348623157E308), "-1.79769313486232E+308");
    EXPECT_EQ(Str_Of(5E-324), " 4.94065645841247E-324");
}

TEST(Number_Text, SinglesAndWholeNumbers) {
    EXPECT_EQ(std::string(Str(Single{0.1F})), " .1");
    EXPECT_EQ(std::string(Str(Single{-99.9F})), "-99.9");
    EXPECT_EQ(std::string(Str(Single{1234567.0F})), " 1234567");
    EXPECT_EQ(std::string(Str(Single{1E7F})), " 1E+07");
    EXPECT_EQ(std::string(Str(Single{1E-7F})), " .0000001");
    EXPECT_EQ(std::string(Str(Single{.01234567F})), " 1.234567E-02");
    EXPECT_EQ(std::string(Str(std::numeric_limits<Long>::min())), "-2147483648");
    EXPECT_EQ(std::string(Str(Int{-32768})), "-32768");
    EXPECT_EQ(std::string(Str(Byte{255})), " 255");
}

TEST(Number_Text, NumTextHasNoLeadingBlank) {
    EXPECT_EQ(std::string(Num_Text(0.5)), ".5");
    EXPECT_EQ(std::string(Num_Text(-0.5)), "-.5");
    EXPECT_EQ(std::string(Num_Text(-0.0)), "0");
    EXPECT_EQ(std::string(Num_Text(Single{2.5F})), "2.5");
    EXPECT_EQ(std::string(Num_Text(Long{-7})), "-7");
    EXPECT_EQ(std::string(Num_Text(Byte{7})), "7");
}

TEST(Number_Text, StrIsTheRoundedDecimalOfAnyNumber) {
    std::mt19937_64 Source(1);
    for (int N = 0; N < 200'000; ++N) {
        const Double X = Odd_Double(Source);
        ASSERT_EQ(Str_Of(X), Plain_Str(X, 15)) << std::hexfloat << X;
        const Single S = static_cast<Single>(X);
        if (!std::isfinite(S)) continue;
        ASSERT_EQ(std::string(Str(S)), Plain_Str(S, 7)) << std::hexfloat << S;
    }
}

TEST(Number_Text, AnUndefinedNumberIsAFaultOfTheProgram) {
    EXPECT_DEATH(Str(Infinite), "finite");
    EXPECT_DEATH(Str(std::numeric_limits<Single>::quiet_NaN()), "finite");
}

TEST(Number_Text, ValTakesTheLongestNumber) {
    const std::vector<std::pair<std::string, Double>> Cases = {{"5", 5.0},
                                                               {"+5", 5.0},
                                                               {"-.5E1x", -5.0},
                                                               {"1 2", 12.0},
                                                               {" 1 . 5 e 1", 15.0},
                                                               {"\t7", 7.0},
                                                               {"1E", 1.0},
                                                               {"1E+", 1.0},
                                                               {"1e-", 1.0},
                                                               {"2.", 2.0},
                                                               {"1.2.3", 1.2},
                                                               {"1,5", 1.0},
                                                               {"0x10", 0.0},
                                                               {"3F", 3.0},
                                                               {"1E400", Infinite},
                                                               {"-1E400", -Infinite},
                                                               {"1E-400", 0.0},
                                                               {"0E99999", 0.0},
                                                               {"1E99999999999", Infinite},
                                                               {"1E-99999999999", 0.0}};
    for (const auto& [Text, Value] : Cases) EXPECT_EQ(Val(Text), Value) << Text;
}

TEST(Number_Text, ValOfNoNumberIsZero) {
    for (const char* Text : {"", " ", "x", ".", "-", "+", "E5", ".E5", "-x", "+-5", "--5", "inf",
                             "INFINITY", "nan", "-inf", "\"5\""})
        EXPECT_EQ(Val(Text), 0.0) << Text;
}

TEST(Number_Text, ValOfManyDigits) {
    const std::string Zeros(400, '0');
    EXPECT_EQ(Val("1" + Zeros), Infinite);
    EXPECT_EQ(Val("1" + Zeros + "E-400"), 1.0);
    EXPECT_EQ(Val("." + Zeros + "1"), 0.0);
    EXPECT_EQ(Val("." + Zeros + "1E401"), 1.0);
    EXPECT_EQ(Val("." + Zeros + "1E10"), 0.0);
    EXPECT_EQ(Val(Zeros + "7"), 7.0);
    EXPECT_EQ(Val("0.1000000000000000055511151231257827"), 0.1);
    EXPECT_EQ(Val("4.9E-324"), std::numeric_limits<Double>::denorm_min());
}

TEST(Number_Text, ValReadsWhatTheCLibraryReads) {
    std::mt19937_64 Source(2);
    for (int N = 0; N < 100'000; ++N) {
        char Text[64];
        std::snprintf(Text, sizeof Text, "%.*g", static_cast<int>(Source() % 20) + 1,
                      Odd_Double(Source));
        ASSERT_EQ(Val(Text), std::strtod(Text, nullptr)) << Text;
    }
}

TEST(Number_Text, TextOfTextIsTheSame) {
    std::mt19937_64 Source(3);
    for (int N = 0; N < 100'000; ++N) {
        const std::string Text = Str_Of(Odd_Double(Source));
        const Double Back = Val(Text);
        if (!std::isfinite(Back)) continue;  // the largest ones round up
        ASSERT_EQ(Str_Of(Back), Text);
    }
}
