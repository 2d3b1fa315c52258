// test_segments.cpp - the exact rules of turns and meeting points.
#include "geometry/segments.h"

#include <gtest/gtest.h>

#include <cmath>

#include "drawings.h"
#include "geometry/exact_turn.h"
#include "support/rows.h"

namespace {

Pix At(const Row_Cells& C, std::size_t I) {
    const std::vector<double> V = Cell_Numbers(C[0]);
    return {V[2 * I], V[2 * I + 1]};
}

std::string Text_Of(Pix P) {
    return Number_Cell(P.X) + "," + Number_Cell(P.Y);
}

TEST(Segments, AsInTheRows) {
    constexpr const char* Meets[] = {"parallel", "miss", "cross", "end"};
    Expect_Rows(
        "segments",
        {{"Line_Coef",
          [](const Row_Cells& C) {
              const Slope L = Line_Coef(At(C, 0), At(C, 1));
              return Text_Of({L.a, L.b});
          }},
         {"Cross_Z",
          [](const Row_Cells& C) { return Number_Cell(Cross_Z(At(C, 0), At(C, 1), At(C, 2))); }},
         {"Sens_3Pts",
          [](const Row_Cells& C) {
              return std::to_string(Sens_3Pts(At(C, 0), At(C, 1), At(C, 2)));
          }},
         {"Line_Cross",
          [](const Row_Cells& C) {
              const Line_Meet M = Line_Cross(At(C, 0), At(C, 1), At(C, 2), At(C, 3));
              return M.Found == 1 ? Text_Of(M.At) : "none";
          }},
         {"Seg_Cross", [&](const Row_Cells& C) {
              const Seg_Meet M = Seg_Cross(At(C, 0), At(C, 1), At(C, 2), At(C, 3));
              return std::string(Meets[static_cast<int>(M.Code)]);
          }}});
}

// Every path through a raster of points, so that each branch of the rule is taken in each of
// its directions.
TEST(Segments, TurnsOnARasterAgreeWithTheExactSide) {
    const auto At = [](int I) { return Pix{I % 5 - 1.0, I / 5 - 3.0}; };
    for (int I = 0; I < 25; ++I)
        for (int J = 0; J < 25; ++J)
            for (int K = 0; K < 25; ++K) {
                if (I == J || J == K) continue;
                const Pix P1 = At(I), P2 = At(J), P3 = At(K);
                const int Side = Exact_Turn(P1, P2, P3);
                const bool Slanted = P1.X != P2.X && P1.Y != P2.Y;
                if (Side == 0 && Slanted) continue;
                EXPECT_EQ(Sens_3Pts(P1, P2, P3), Side == 0  ? 0
                                                 : Side > 0 ? 2
                                                            : 1)
                    << I << " " << J << " " << K;
            }
}

TEST(ExactTurn, SeesTheLastBit) {
    const Pix B{1e5 / 3, 7.7e4}, On{2 * B.X, 2 * B.Y};
    EXPECT_EQ(Exact_Turn({0, 0}, B, On), 0);
    EXPECT_EQ(Exact_Turn({0, 0}, B, {On.X, std::nextafter(On.Y, 1e9)}), 1);
    EXPECT_EQ(Exact_Turn({0, 0}, B, {On.X, std::nextafter(On.Y, 0)}), -1);
    drawings::Random R(1);
    for (int I = 0; I < 2000; ++I) {
        const Pix P{R.Between(-1, 1), R.Between(-1, 1)}, Q{R.Between(2, 3), R.Between(2, 3)};
        const Pix S{P.X + (Q.X - P.X) / 3, P.Y + (Q.Y - P.Y) / 3};  // all but in line
        const int Side = Exact_Turn(P, Q, S);
        ASSERT_EQ(Exact_Turn(Q, S, P), Side);
        ASSERT_EQ(Exact_Turn(S, Q, P), -Side);
    }
}

}  // namespace
