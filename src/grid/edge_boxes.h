// grid/edge_boxes.h - boxes over the edges of an outline that loses points.
//
// A query finds the edges that Seg_Cross could find a segment to cross. Boxes are kept in
// Single: the rounding never turns two numbers round, so boxes that meet still meet. Each node
// holds the boxes of eight children side by side, so that the compiler tests them together.
//
// Where only boxes meet, the segment may still keep off. That is told apart with a margin, for
// the meeting point that Seg_Cross works out is rounded: it lies inside both boxes, but strays
// from either line by up to 64 roundings of (slope 1 + slope 2) * X + Y, measured upright. Slopes
// count as 0 for upright segments. Edges that are all but upright stray far; nodes with such an
// edge are looked into whenever boxes meet.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <vector>

#include "grid/box.h"

/// A stretch of places 0 to N - 1, going round: from First up to but not at End.
struct Place_Range {
    Long First = 0;
    Long End = 0;

    bool Holds(Long Place) const { return Holds(Place, Place + 1); }
    /// All places from A to B - 1.
    bool Holds(Long A, Long B) const {
        return First <= End ? First <= A && B <= End : First <= A || B <= End;
    }
};

class Edge_Boxes {
public:
    /// Room for N edges, all absent.
    void Reset(Long N);

    /// Sets the box of edge E, or takes it away. The nodes above are right after Refresh.
    void Put(Long E, Pix P1, Pix P2);
    void Drop(Long E) { Set(E, None); }
    void Refresh_All();
    void Refresh(Long E);
    /// Whether one Refresh serves both edges.
    static bool Share_Node(Long E1, Long E2) {
        return static_cast<std::size_t>(E1) / Fan == static_cast<std::size_t>(E2) / Fan;
    }

    /// Whether Hits(e) for some edge e that is not in Skip and whose box the segment from A to B
    /// passes. Size bounds all coordinates.
    template <typename Hit>
    bool Any_Near(Pix A, Pix B, Double Size, const Place_Range& Skip, Hit&& Hits) const {
        return Descend(Level_.size() - 1, 0, Query(A, B, Size), Skip, Hits);
    }

private:
    static constexpr std::size_t Fan = 8;
    static constexpr Double Steepest = 1e6;
    static constexpr Single Far = std::numeric_limits<Single>::infinity();

    // Never beyond the box of an absent edge.
    static Single Rounded(Double V) {
        constexpr Double Most = std::numeric_limits<Single>::max();
        return static_cast<Single>(std::clamp(V, -Most, Most));
    }

    // The box of an edge or of a node, and whether there is a steep edge in it (0 or 1).
    struct Box_Single {
        Single LX, LY, HX, HY, Steep;
        bool operator==(const Box_Single&) const = default;
    };
    static constexpr Box_Single None{Far, Far, -Far, -Far, 0.0F};

    struct Node {
        std::array<Single, Fan> LX, LY, HX, HY, Steep;

        Box_Single Get(std::size_t C) const { return {LX[C], LY[C], HX[C], HY[C], Steep[C]}; }
        void Set(std::size_t C, const Box_Single& B) {
            LX[C] = B.LX;
            LY[C] = B.LY;
            HX[C] = B.HX;
            HY[C] = B.HY;
            Steep[C] = B.Steep;
        }
    };

    // The segment and its box.
    struct Query {
        Query(Pix A, Pix B, Double Size)
            : LX(Rounded(std::min(A.X, B.X))),
              LY(Rounded(std::min(A.Y, B.Y))),
              HX(Rounded(std::max(A.X, B.X))),
              HY(Rounded(std::max(A.Y, B.Y))),
              At(A),
              dx(B.X - A.X),
              dy(B.Y - A.Y),
              Margin((std::abs(dx) + std::abs(dy)) * Size * 2 *
                     std::numeric_limits<Single>::epsilon()) {}

        // Whether the segment's line keeps off child C. The margin is for the boxes, which are
        // Single; the roundings of a Double at a slope below Steepest are a tenth of it.
        bool Is_Beside(const Node& N, std::size_t C) const {
            const Double Mid_X = (Double{N.LX[C]} + N.HX[C]) / 2;
            const Double Mid_Y = (Double{N.LY[C]} + N.HY[C]) / 2;
            const Double Off = dx * (Mid_Y - At.Y) - dy * (Mid_X - At.X);
            const Double Reach =
                std::abs(dx) * (N.HY[C] - Mid_Y) + std::abs(dy) * (N.HX[C] - Mid_X);
            return N.Steep[C] == 0.0F && std::abs(Off) > Reach + Margin;
        }

        Single LX, LY, HX, HY;
        Pix At;
        Double dx, dy, Margin;
    };

    void Set(Long E, const Box_Single& B) {
        Level_[0][static_cast<std::size_t>(E) / Fan].Set(static_cast<std::size_t>(E) % Fan, B);
    }
    static Box_Single Union(const Node& N);

    template <typename Hit>
    bool Descend(std::size_t Lv, std::size_t K, const Query& Q, const Place_Range& Skip,
                 Hit& Hits) const {
        const Node& N = Level_[Lv][K];
        // Two loops, as the compiler turns only the first into vector instructions.
        static constexpr std::array<int, Fan> Bit{1, 2, 4, 8, 16, 32, 64, 128};
        std::array<int, Fan> Part;
        for (std::size_t C = 0; C < Fan; ++C)
            Part[C] = -(static_cast<int>(N.LX[C] <= Q.HX) & static_cast<int>(Q.LX <= N.HX[C]) &
                        static_cast<int>(N.LY[C] <= Q.HY) & static_cast<int>(Q.LY <= N.HY[C])) &
                      Bit[C];
        int Sum = 0;
        for (const int P : Part) Sum |= P;
        auto Meets = static_cast<unsigned>(Sum);
        for (; Meets != 0; Meets &= Meets - 1) {
            const auto C = static_cast<std::size_t>(std::countr_zero(Meets));
            const std::size_t Child = Fan * K + C;
            if (Lv == 0) {
                const auto E = static_cast<Long>(Child);
                if (!Skip.Holds(E) && Hits(E)) return true;
                continue;
            }
            const int Shift = 3 * static_cast<int>(Lv);
            if (Skip.Holds(static_cast<Long>(Child << Shift),
                           static_cast<Long>((Child + 1) << Shift)))
                continue;
            if (!Q.Is_Beside(N, C) && Descend(Lv - 1, Child, Q, Skip, Hits)) return true;
        }
        return false;
    }

    std::vector<std::vector<Node>> Level_;
};
