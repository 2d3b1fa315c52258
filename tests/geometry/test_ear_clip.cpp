// test_ear_clip.cpp - triangles cover what they were made of, whatever it is.
#include "geometry/ear_clip.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "geometry/exact_turn.h"
#include "shapes.h"

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

TEST(EarClip, SimpleOutlinesAreCoveredExactly) {
    int Covered = 0;
    for (std::uint64_t Seed = 1; Seed <= 300; ++Seed) {
        SCOPED_TRACE(Seed);
        Random R(Seed);
        Outline O;
        const Long Nb = R.Whole(5, 100);
        if (Seed % 5 == 0) O = shapes::Fractal_Ring(R, Field, Nb);
        if (Seed % 5 == 1) O = shapes::Star(R, Field, Nb / 2 + 1);
        if (Seed % 5 == 2) O = shapes::Comb(R, Field, Nb / 2);
        if (Seed % 5 == 3) O = shapes::Spiral(Field, 3 * Nb);
        if (Seed % 5 == 4) O = shapes::Tangle(R, Field, Nb / 2 + 2, R.Chance(0.5) ? 50 : 0);
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

TEST(EarClip, LargeOutlines) {
    Random R(10);
    const Frame Wide{{0, 0}, {30000, 30000}};
    for (const Outline& O : {shapes::Fractal_Ring(R, Wide, 20000), shapes::Comb(R, Wide, 5000),
                             shapes::Spiral(Wide, 20000), shapes::Star(R, Wide, 10000)}) {
        const std::vector<Ear> Ears = Ear_Clip(O);
        EXPECT_EQ(Ears.size(), O.size() - 2);
        Expect_Covers(O, Ears);
    }
    Outline Knot;
    for (int I = 0; I < 20000; ++I) Knot.push_back({R.Between(0, 30000), R.Between(0, 30000)});
    Expect_Clockwise(Knot, Ear_Clip(Knot));
}

}  // namespace
