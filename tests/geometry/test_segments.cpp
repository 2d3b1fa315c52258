// test_segments.cpp - the exact rules of turns and meeting points.
#include "geometry/segments.h"

#include <gtest/gtest.h>

#include "geometry/exact_turn.h"

namespace {

TEST(Segments, LineCoef) {
    EXPECT_EQ(Line_Coef({3, 1}, {3, 9}).a, 0.0);
    EXPECT_EQ(Line_Coef({3, 1}, {3, 9}).b, 0.0) << "a vertical line has neither";
    EXPECT_EQ(Line_Coef({-2, 7}, {5, 7}).b, 7.0);
    const Slope L = Line_Coef({0.1, 0.7}, {3.3, 8.9});
    EXPECT_EQ(L.a, (8.9 - 0.7) / (3.3 - 0.1));
    EXPECT_EQ(L.b, 0.7 - L.a * 0.1) << "the intercept comes from the first point";
}

TEST(Segments, CrossZHasNoFusedStep) {
    EXPECT_EQ(Cross_Z({0.1, 0.7}, {3.3, 8.9}, {3.3, 8.9}), 0.0);
    EXPECT_GT(Cross_Z({0, 0}, {4, 0}, {4, 4}), 0.0) << "clockwise with Y south";
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

TEST(Segments, TurnsInLineAndOfRepeatedPoints) {
    EXPECT_EQ(Sens_3Pts({0, 0}, {2, 2}, {4, 4}), 0) << "the foot is the point itself";
    EXPECT_NE(Sens_3Pts({0, 0}, {2, 2}, {4, 4.0000000000001}), 0) << "almost in line is a turn";
    EXPECT_EQ(Sens_3Pts({5, 5}, {5, 5}, {6, 0}), 1);
    EXPECT_EQ(Sens_3Pts({5, 5}, {5, 5}, {4, 0}), 2);
    EXPECT_EQ(Sens_3Pts({6, 0}, {5, 5}, {5, 5}), 1) << "a repeated corner counts as a turn";
    EXPECT_EQ(Sens_3Pts({4, 0}, {5, 5}, {5, 5}), 2);
}

TEST(Segments, LinesMeet) {
    const auto Meet = [](Pix P1, Pix P2, Pix P3, Pix P4) {
        const Line_Meet M = Line_Cross(P1, P2, P3, P4);
        EXPECT_EQ(M.Found, 1);
        return M.At;
    };
    EXPECT_EQ(Meet({0, 0}, {9, 9}, {9, 0}, {0, 9}), (Pix{4.5, 4.5}));
    EXPECT_EQ(Meet({2, 0}, {2, 9}, {0, 5}, {9, 5}), (Pix{2, 5}));
    EXPECT_EQ(Meet({2, 0}, {2, 9}, {0, 0}, {8, 4}), (Pix{2, 1}));
    EXPECT_EQ(Meet({0, 0}, {8, 4}, {2, 0}, {2, 9}), (Pix{2, 1}));
    EXPECT_EQ(Meet({0, 3}, {9, 3}, {0, 0}, {8, 4}), (Pix{6, 3}));
    EXPECT_EQ(Meet({0, 0}, {8, 4}, {20, 3}, {29, 3}), (Pix{6, 3})) << "beyond the segments too";
    EXPECT_EQ(Meet({1, 1}, {5, 1}, {9, 1}, {1, 1}), (Pix{1, 1})) << "a common point comes first";
    EXPECT_EQ(Meet({1, 1}, {5, 1}, {5, 1}, {9, 1}), (Pix{5, 1}));
}

TEST(Segments, ParallelLinesDoNotMeet) {
    EXPECT_EQ(Line_Cross({1, 0}, {1, 5}, {2, 0}, {2, 5}).Found, 0);
    EXPECT_EQ(Line_Cross({0, 1}, {5, 1}, {0, 2}, {5, 2}).Found, 0);
    EXPECT_EQ(Line_Cross({0, 0}, {4, 2}, {0, 1}, {4, 3}).Found, 0);
    EXPECT_EQ(Line_Cross({0, 0}, {1, 1}, {0, 5}, {1, 6.00000000005}).Found, 0);
    EXPECT_EQ(Line_Cross({0, 0}, {1, 1}, {0, 5}, {1, 6.0000000002}).Found, 1);
}

TEST(Segments, CodesOfSegments) {
    const auto Code = [](Pix P1, Pix P2, Pix P3, Pix P4) { return Seg_Cross(P1, P2, P3, P4).Code; };
    EXPECT_EQ(Code({0, 0}, {4, 2}, {0, 1}, {4, 3}), Meet::Parallel);
    EXPECT_EQ(Code({0, 0}, {8, 8}, {8, 0}, {5, 3}), Meet::Miss) << "the second stops short in X";
    EXPECT_EQ(Code({0, 0}, {2, 2}, {8, 0}, {0, 8}), Meet::Miss) << "the first does";
    EXPECT_EQ(Code({0, 0}, {8, 8}, {4, 5}, {4, 9}), Meet::Miss) << "missed in Y alone";
    EXPECT_EQ(Code({0, 0}, {8, 8}, {8, 0}, {0, 8}), Meet::Cross);
    EXPECT_EQ(Code({0, 0}, {8, 8}, {4, 4}, {8, 0}), Meet::Cross) << "an end on the other's inside crosses";
    EXPECT_EQ(Code({0, 0}, {4, 4}, {4, 4}, {8, 0}), Meet::End);
    EXPECT_EQ(Code({0, 0}, {4, 4}, {4, 0}, {4, 9}), Meet::End) << "touch: X is an end of both";
}

}  // namespace
