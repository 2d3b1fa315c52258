// test_edge_boxes.cpp - no edge that a segment crosses may be missed, however edges stand in the
// tree and whichever are gone.
#include "geometry/edge_boxes.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>
#include <vector>

#include "geometry/segments.h"
#include "shapes.h"

namespace {

// Turns far longer than a node of the tree, or far shorter: then boxes lie over each other.
std::vector<Pix> Spiral(Long Points, Long Points_A_Turn) {
    std::vector<Pix> Line;
    for (Long I = 0; I < Points; ++I) {
        const Double Radius = 20.0 + 80.0 * I / Points;
        const Double Angle = 2.0 * std::numbers::pi * I / Points_A_Turn;
        Line.push_back({500 + Radius * std::cos(Angle), 300 + Radius * std::sin(Angle)});
    }
    return Line;
}

// An outline whose points go, as in the convex split, with the boxes beside it.
class Shrinking {
public:
    explicit Shrinking(std::vector<Pix> Line) : Line_(std::move(Line)), Next_(Line_.size()) {
        Boxes_.Reset(Nb());
        for (Long E = 0; E < Nb(); ++E) {
            Next_[Ix(E)] = E + 1 == Nb() ? 0 : E + 1;
            Boxes_.Put(E, Line_[Ix(E)], Line_[Ix(Next_[Ix(E)])]);
        }
        Boxes_.Settle();
    }

    Long Nb() const { return static_cast<Long>(Line_.size()); }

    // Takes the point behind E away, where there is one.
    void Shorten(Long E) {
        if (Next_[Ix(E)] < 0 || Next_[Ix(Next_[Ix(E)])] == E) return;
        const Long Gone = Next_[Ix(E)];
        Next_[Ix(E)] = Next_[Ix(Gone)];
        Next_[Ix(Gone)] = -1;
        Boxes_.Drop(Gone);
        Boxes_.Put(E, Line_[Ix(E)], Line_[Ix(Next_[Ix(E)])]);
        if (!Boxes_.Share_Node(E, Gone)) Boxes_.Refresh(Gone);
        Boxes_.Refresh(E);
    }

    void Lay_Slabs() {
        Boxes_.Lay_Slabs([&](Long E) {
            return std::array{Line_[Ix(E)], Line_[Ix(std::max(Next_[Ix(E)], 0))]};
        });
    }

    bool Crosses(Long E, Pix A, Pix B) const {
        return Next_[Ix(E)] >= 0 &&
               Seg_Cross(Line_[Ix(E)], Line_[Ix(Next_[Ix(E)])], A, B).Code == Meet::Cross;
    }

    // The edges found, of which none may be gone.
    std::vector<Long> Found(Pix A, Pix B, const Place_Range& Skip) {
        std::vector<Long> Edges;
        Boxes_.Any_Near(A, B, 1000.0, Skip, [&](Long E) {
            EXPECT_GE(Next_[Ix(E)], 0) << "edge " << E << " is gone";
            if (Crosses(E, A, B)) Edges.push_back(E);
            return false;
        });
        std::sort(Edges.begin(), Edges.end());
        return Edges;
    }

    std::vector<Long> Plainly_Found(Pix A, Pix B, const Place_Range& Skip) const {
        std::vector<Long> Edges;
        for (Long E = 0; E < Nb(); ++E)
            if (!Skip.Holds(E) && Crosses(E, A, B)) Edges.push_back(E);
        return Edges;
    }

private:
    static std::size_t Ix(Long E) { return static_cast<std::size_t>(E); }

    std::vector<Pix> Line_;
    std::vector<Long> Next_;  // -1 at those gone
    Edge_Boxes Boxes_;
};

void Expect_All_Found(Shrinking Outline, std::uint64_t Seed) {
    shapes::Random R(Seed);
    const Long Nb = Outline.Nb();
    std::size_t Crossed = 0;
    for (int Round = 0; Round < 300; ++Round) {
        const Pix A{R.Between(400, 600), R.Between(200, 400)};
        const Pix B = Round % 3 == 0 ? Pix{R.Between(400, 600), R.Between(200, 400)}
                                     : Pix{A.X + R.Between(-2, 2), A.Y + R.Between(-2, 2)};
        const Place_Range Skip{R.Whole(0, Nb - 1), R.Whole(0, Nb - 1)};
        if (Round % 100 == 50) Outline.Lay_Slabs();
        const auto Plain = Outline.Plainly_Found(A, B, Skip);
        ASSERT_EQ(Outline.Found(A, B, Skip), Plain) << "round " << Round;
        Crossed += Plain.size();
        for (Long I = Nb / 400; I > 0; --I) Outline.Shorten(R.Whole(0, Nb - 1));
    }
    EXPECT_GT(Crossed, 30U) << "else the test says little";
}

TEST(Edge_Boxes, EveryCrossedEdgeIsFound) {
    Expect_All_Found(Shrinking(Spiral(3000, 2800)), 1);
    Expect_All_Found(Shrinking(Spiral(40, 7)), 2);
    Expect_All_Found(Shrinking(Spiral(1500, 150)), 3);
}

TEST(Edge_Boxes, AlsoWhereLongStretchesLieOverEachOther) {
    Expect_All_Found(Shrinking(Spiral(3000, 30)), 4);
    Expect_All_Found(Shrinking(Spiral(1500, 11)), 5);
}

TEST(Edge_Boxes, EdgesOfNoExtentAtAll) {
    Shrinking Points(std::vector<Pix>(600, Pix{500, 300}));
    for (const Pix B : {Pix{501, 301}, Pix{501, 302}, Pix{499, 305}, Pix{501, 299}})
        EXPECT_EQ(Points.Found({499, 299}, B, {0, 0}), Points.Plainly_Found({499, 299}, B, {0, 0}));
    std::vector<Pix> Upright;
    for (int I = 0; I < 600; ++I) Upright.push_back({500.0, 250.0 + (I * 37) % 100});
    Expect_All_Found(Shrinking(std::move(Upright)), 6);
}

// Beside a diagonal, so many times 2 ^ -15 to the east: the margin covers what the rounding of
// boxes and of meeting points can hide, and ends at 16.
TEST(Edge_Boxes, LooksAsFarAsTheMarginReaches) {
    constexpr Double Step = 0x1p-15, Half = 0x1p-11;
    for (const int Off : {0, 13, 15, 17}) {
        const Pix Middle{256 + Off * Step, 256 - Off * Step};
        Edge_Boxes Boxes;
        Boxes.Reset(1);
        Boxes.Put(0, {Middle.X - Half, Middle.Y}, {Middle.X + Half, Middle.Y});
        Boxes.Settle();
        const bool Seen =
            Boxes.Any_Near({0, 0}, {512, 512}, 1024, {0, 0}, [](Long) { return true; });
        EXPECT_EQ(Seen, Off < 16) << Off;
    }
}

}  // namespace
