// test_ear_clip.cpp - triangles cover what they were made of, whatever it is.
#include "geometry/ear_clip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "geometry/exact_turn.h"
#include "reference/shapes.h"

namespace {

using shapes::Frame;
using shapes::Outline;
using shapes::Random;

constexpr Frame Field{{10, 20}, {1010, 1020}};

Double Area_2(const Outline& O, const Ear& E) {
    return shapes::Area_2(Outline{O[E[0]], O[E[1]], O[E[2]]});
}

void Expect_Clockwise(const Outline& O, const std::vector<Ear>& Ears) {
    for (const Ear& E : Ears) ASSERT_EQ(Exact_Turn(O[E[0]], O[E[1]], O[E[2]]), 1);
}

void Expect_Covers(const Outline& O, const std::vector<Ear>& Ears) {
    Expect_Clockwise(O, Ears);
    Double Sum = 0.0;
    for (const Ear& E : Ears) Sum += Area_2(O, E);
    const Double Area = std::abs(shapes::Area_2(O));
    EXPECT_NEAR(Sum, Area, 1e-9 * std::max(Area, 1.0));
}

// Triangles of the right total area that hold no other point can neither overlap nor leave gaps.
void Expect_Empty_Triangles(const Outline& O, const std::vector<Ear>& Ears) {
    for (const auto& [A, B, C] : Ears)
        for (const Pix P : O)
            ASSERT_FALSE(Exact_Turn(O[A], O[B], P) > 0 && Exact_Turn(O[B], O[C], P) > 0 &&
                         Exact_Turn(O[C], O[A], P) > 0);
}

void Expect_Exact_Cover(const Outline& O) {
    const std::vector<Ear> Ears = Ear_Clip(O);
    EXPECT_EQ(Ears.size(), O.size() - 2);
    Expect_Covers(O, Ears);
    Expect_Empty_Triangles(O, Ears);
}

TEST(ExactTurn, SeesTheLastBit) {
    const Pix A{0.1, 0.3}, B{1e5 / 3, 7.7e4};
    const Pix On{2 * B.X, 2 * B.Y};
    EXPECT_EQ(Exact_Turn({0, 0}, B, On), 0);
    EXPECT_EQ(Exact_Turn({0, 0}, B, {On.X, std::nextafter(On.Y, 1e9)}), 1);
    EXPECT_EQ(Exact_Turn({0, 0}, B, {On.X, std::nextafter(On.Y, 0)}), -1);
    EXPECT_EQ(Exact_Turn(A, B, A), 0);
    Random R(1);
    for (int I = 0; I < 2000; ++I) {
        const Pix P{R.Between(-1, 1), R.Between(-1, 1)}, Q{R.Between(2, 3), R.Between(2, 3)};
        const Pix S{P.X + (Q.X - P.X) / 3, P.Y + (Q.Y - P.Y) / 3};  // all but in line
        const int Side = Exact_Turn(P, Q, S);
        ASSERT_EQ(Exact_Turn(Q, S, P), Side);
        ASSERT_EQ(Exact_Turn(S, Q, P), -Side);
    }
}

TEST(EarClip, SimpleOutlinesAreCoveredExactly) {
    int Covered = 0;
    for (std::uint64_t Seed = 1; Seed <= 300; ++Seed) {
        SCOPED_TRACE(Seed);
        Random R(Seed);
        Outline O;
        switch (Seed % 5) {
            case 0:
                O = shapes::Fractal_Ring(R, Field, R.Whole(5, 200));
                break;
            case 1:
                O = shapes::Star(R, Field, R.Whole(3, 40));
                break;
            case 2:
                O = shapes::Comb(R, Field, R.Whole(1, 40));
                break;
            case 3:
                O = shapes::Spiral(Field, R.Whole(1, 6), R.Whole(12, 40));
                break;
            default:
                O = shapes::Tangle(R, Field, R.Whole(4, 60), R.Chance(0.5) ? 50 : 0);
        }
        if (R.Chance(0.5)) std::reverse(O.begin(), O.end());
        if (!shapes::Is_Simple(O)) continue;
        Expect_Exact_Cover(O);
        ++Covered;
    }
    EXPECT_GT(Covered, 200);
}

TEST(EarClip, PointsInLineStayCornersOfTriangles) {
    Random R(7);
    for (int I = 0; I < 50; ++I) {
        const Outline O =
            shapes::With_Points_In_Line(R, I % 2 == 0 ? shapes::Rectangle({{0, 0}, {64, 64}})
                                                      : shapes::Comb(R, {{0, 0}, {78, 64}}, 7));
        if (shapes::Is_Simple(O)) Expect_Exact_Cover(O);
    }
}

TEST(EarClip, RepeatsAndSpikesCostNoArea) {
    Random R(8);
    for (int I = 0; I < 100; ++I) {
        Outline O = shapes::Tangle(R, Field, 20);
        const Pix Tip{R.Between(10, 1010), R.Between(2000, 3000)};
        const auto Lowest =
            std::max_element(O.begin(), O.end(), [](Pix A, Pix B) { return A.Y < B.Y; });
        O.insert(Lowest + 1, {Tip, *Lowest});  // out and straight back
        O = shapes::With_Repeats(R, O);
        Expect_Covers(O, Ear_Clip(O));
    }
}

TEST(EarClip, OutlinesThatTouchThemselves) {
    // A square with a square hole, joined by a bridge that is walked both ways.
    const Outline Keyhole{{0, 0},   {90, 0},  {90, 90}, {0, 90},  {0, 0},
                          {30, 30}, {30, 60}, {60, 60}, {60, 30}, {30, 30}};
    const std::vector<Ear> Ears = Ear_Clip(Keyhole);
    Expect_Covers(Keyhole, Ears);
    Expect_Empty_Triangles(Keyhole, Ears);
    const Outline Bow_Tie{{0, 0}, {40, 0}, {20, 20}, {40, 40}, {0, 40}, {20, 20}};
    Expect_Covers(Bow_Tie, Ear_Clip(Bow_Tie));
}

TEST(EarClip, NothingToCover) {
    EXPECT_TRUE(Ear_Clip({}).empty());
    EXPECT_TRUE(Ear_Clip(Outline{{1, 1}, {2, 2}}).empty());
    EXPECT_TRUE(Ear_Clip(Outline(50, Pix{3, 4})).empty());
    EXPECT_TRUE(Ear_Clip(Outline{{0, 0}, {1, 1}, {5, 5}, {3, 3}, {2, 2}}).empty());
}

TEST(EarClip, TanglesComeToAnEnd) {
    Random R(9);
    for (int I = 0; I < 100; ++I) {
        Outline O;
        for (Long K = R.Whole(3, 200); K > 0; --K)
            O.push_back({R.Whole(0, 20) * 1.0, R.Whole(0, 20) * 1.0});
        const std::vector<Ear> Ears = Ear_Clip(O);
        Expect_Clockwise(O, Ears);
        EXPECT_LE(Ears.size(), O.size() - 2);
    }
}

TEST(EarClip, LargeOutlines) {
    Random R(10);
    const Frame Wide{{0, 0}, {30000, 30000}};
    for (const Outline& O : {shapes::Fractal_Ring(R, Wide, 20000), shapes::Comb(R, Wide, 5000),
                             shapes::Spiral(Wide, 50, 200), shapes::Star(R, Wide, 10000)}) {
        const std::vector<Ear> Ears = Ear_Clip(O);
        EXPECT_EQ(Ears.size(), O.size() - 2);
        Expect_Covers(O, Ears);
    }
    Outline Knot;
    for (int I = 0; I < 20000; ++I) Knot.push_back({R.Between(0, 30000), R.Between(0, 30000)});
    Expect_Clockwise(Knot, Ear_Clip(Knot));
}

}  // namespace
