// tests/core/test_numbers.cpp - roundings into the number types.
#include "core/numbers.h"

#include <gtest/gtest.h>

namespace {
constexpr Double Infinite = std::numeric_limits<Double>::infinity();
constexpr Double Undefined = std::numeric_limits<Double>::quiet_NaN();
constexpr Long Longest = std::numeric_limits<Long>::max();
constexpr Long Lowest = std::numeric_limits<Long>::min();
}  // namespace

TEST(Numbers, FixCutsTowardZero) {
    EXPECT_EQ(Fix_Lng(-2.9), -2);
    EXPECT_EQ(Fix_Lng(2.9), 2);
    EXPECT_EQ(Fix_Lng(-0.5), 0);
    EXPECT_EQ(Fix_Lng(2147483647.9), Longest);
    EXPECT_EQ(Fix_Lng(-2147483648.9), Lowest);
}

TEST(Numbers, AHalfRoundsToTheEvenNeighbour) {
    for (const auto& [X, Whole] : {std::pair{2.5, 2}, {3.5, 4}, {-2.5, -2}, {-3.5, -4}, {0.5, 0}}) {
        EXPECT_EQ(Round_Lng(X), Whole) << X;
        EXPECT_EQ(Round_Int(X), Whole) << X;
    }
    EXPECT_EQ(Round_Lng(0.49999999999999994), 0);
    EXPECT_EQ(Round_Lng(2.5000000000000004), 3);
    EXPECT_EQ(Round_Lng(2147483646.5), 2147483646);
}

TEST(Numbers, ValuesBeyondATypeGiveItsNearest) {
    EXPECT_EQ(Round_Int(32767.5), 32767);
    EXPECT_EQ(Round_Int(-32768.6), -32768);
    EXPECT_EQ(Round_Int(Infinite), 32767);
    EXPECT_EQ(Round_Lng(1E300), Longest);
    EXPECT_EQ(Fix_Lng(-Infinite), Lowest);
    EXPECT_EQ(Round_Lng(Undefined), 0);
    EXPECT_EQ(Fix_Lng(Undefined), 0);
}
