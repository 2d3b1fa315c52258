// tests/gen/test_night_offset.cpp - sides, distances and corners of the paths of lights.
#include "gen/night_offset.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

constexpr Double Slack = 1e-9;  // metres

Double Cross(Metres From, Metres To, Metres P) {
    return (To.X - From.X) * (P.Y - From.Y) - (To.Y - From.Y) * (P.X - From.X);
}

void Expect_Near(Metres P, Metres Wanted) {
    EXPECT_NEAR(P.X, Wanted.X, Slack);
    EXPECT_NEAR(P.Y, Wanted.Y, Slack);
}

TEST(Night_Offset, LeftIsLeftForEveryHeading) {
    const Metres A{30, -20};
    for (Int Heading = 0; Heading < 360; Heading += 15) {
        const Double Turn = Heading * std::numbers::pi / 180;
        const Metres B{A.X + 50 * std::sin(Turn), A.Y + 50 * std::cos(Turn)};
        for (const bool At_End : {false, true}) {
            const Metres C = At_End ? B : A;
            const Lane_Pt P = Night_Offset(A, B, 8, At_End);
            EXPECT_NEAR(Cross(A, B, P.Left), 50 * 8, 1e-6) << Heading;
            EXPECT_NEAR(std::hypot(P.Left.X - C.X, P.Left.Y - C.Y), 8, Slack) << Heading;
            Expect_Near({(P.Left.X + P.Right.X) / 2, (P.Left.Y + P.Right.Y) / 2}, C);
        }
    }
    EXPECT_EQ(Night_Offset({0, 0}, {0, -9}, 2, false).Left, (Metres{2, 0})) << "southward: east";
}

TEST(Night_Offset, AlmostAlongAnAxisIsAlongIt) {
    EXPECT_EQ(Night_Offset({0, 0}, {0.009, 50}, 4, true).Left, (Metres{-4, 50}));
    EXPECT_EQ(Night_Offset({0, 0}, {-50, 0.009}, 4, true).Left, (Metres{-50, -4}));
    EXPECT_NE(Night_Offset({0, 0}, {0.011, 50}, 4, true).Left.Y, 50);
    const Lane_Pt Point = Night_Offset({7, 7}, {7.001, 7.001}, 4, true);
    EXPECT_EQ(Point.Left, (Metres{3, 7})) << "no length, and no division by it";
}

TEST(Night_Mitre, Corners) {
    const Metres East_1{0, 10}, East_2{100, 10}, North_1{90, 0}, North_2{90, 50};
    EXPECT_EQ(Night_Mitre(East_1, East_2, North_1, North_2), (Metres{90, 10}));
    EXPECT_EQ(Night_Mitre(North_2, North_1, East_2, East_1), (Metres{90, 10}));
    EXPECT_EQ(Night_Mitre({0, 0}, {10, 10}, {0, 12}, {8, 4}), (Metres{6, 6}));
    EXPECT_EQ(Night_Mitre({0, 4}, {9, 4}, {0, 0}, {3, 3}), (Metres{4, 4})) << "level, slant";
    EXPECT_EQ(Night_Mitre({0, 0}, {3, 3}, {4, 9}, {4, 1}), (Metres{4, 4})) << "slant, upright";
    EXPECT_EQ(Night_Mitre({4, 0}, {4, 2}, {0, 1}, {3, 4}), (Metres{4, 5})) << "upright, slant";
    EXPECT_EQ(Night_Mitre({0, 1}, {3, 4}, {0, 6}, {9, 6}), (Metres{5, 6})) << "slant, level";
}

TEST(Night_Mitre, WithoutACornerTheSecondPoint) {
    const Metres P2{10, 10};
    EXPECT_EQ(Night_Mitre({0, 0}, P2, P2, {20, 0}), P2);
    EXPECT_EQ(Night_Mitre({0, 0}, P2, {11, 11.5}, {21, 21.50001}), P2) << "nearly parallel";
    EXPECT_EQ(Night_Mitre({10, 0}, P2, {12, 10}, {10, 20}), P2) << "1, 2 and 4 upright";
    EXPECT_EQ(Night_Mitre({10, 0}, P2, {12, 10}, {12, 20}), P2) << "both upright";
    EXPECT_EQ(Night_Mitre({0, 10}, P2, {10, 12}, {20, 12}), P2) << "both level";
}

TEST(Lanes, ByLineKind) {
    EXPECT_EQ(Lanes_Of(1133), (Road_Lanes{1, 0}));
    EXPECT_EQ(Lanes_Of(1134), (Road_Lanes{2, 1}));
    EXPECT_EQ(Lanes_Of(1145), (Road_Lanes{4, 1}));
    EXPECT_EQ(Lanes_Of(1157), (Road_Lanes{10, 1}));
    EXPECT_EQ(Lanes_Of(1158), (Road_Lanes{2, 0}));
    EXPECT_EQ(Lanes_Of(1170), (Road_Lanes{6, 0}));
    EXPECT_EQ(Lanes_Of(1181), (Road_Lanes{10, 0}));
    EXPECT_EQ(Lanes_Of(1182), (Road_Lanes{1, 0}));
}

TEST(Lanes, OffsetsFromTheMiddle) {
    EXPECT_EQ(Lane_Offsets({1, 0}, 50), std::vector<Double>{0});
    EXPECT_EQ(Lane_Offsets({6, 0}, 12), (std::vector<Double>{1, 3, 5}));
    const std::vector<Double> Parted = Lane_Offsets({4, 1}, 64 * 0.66);
    ASSERT_EQ(Parted.size(), 2U);
    EXPECT_NEAR(Parted[0], 1.5 * 42.24 / 11, Slack);
    EXPECT_NEAR(Parted[1], 4.5 * 42.24 / 11, Slack);
}

TEST(Lane_Path, APairForEachPoint) {
    const std::vector<Metres> Road = {{0, 0}, {100, 0}, {100, 100}, {200, 100}};
    const std::vector<Lane_Pt> Path = Lane_Path(Road, 10, false);
    ASSERT_EQ(Path.size(), 4U);
    EXPECT_EQ(Path[0].Left, (Metres{0, 10}));
    EXPECT_EQ(Path[1].Left, (Metres{90, 10}));
    EXPECT_EQ(Path[1].Right, (Metres{110, -10}));
    // The line into the second corner runs from (100, 10), the end of the first segment's left
    // side, to (90, 100).
    Expect_Near(Path[2].Left, {800.0 / 9, 110});
    Expect_Near(Path[2].Right, {1200.0 / 11, 90});
    EXPECT_EQ(Path[3].Left, (Metres{200, 110}));
    EXPECT_EQ(Path[3].Right, (Metres{200, 90}));

    const std::vector<Lane_Pt> One = Lane_Path(Road, 0, true);
    ASSERT_EQ(One.size(), Road.size());
    for (std::size_t I = 0; I < Road.size(); ++I) {
        EXPECT_EQ(One[I].Left, Road[I]);
        EXPECT_EQ(One[I].Right, Road[I]);
    }
}

}  // namespace
