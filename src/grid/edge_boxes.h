// grid/edge_boxes.h - boxes over the edges of an outline that loses points.
//
// A query finds the edges that a segment could meet. Boxes are kept in Single: the rounding
// never turns two numbers round, so boxes that meet still meet. Each node holds the boxes of
// eight children side by side, so that the compiler tests them together.
#pragma once

#include <array>
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

    /// Whether Hits(e) for some edge e that is not in Skip and whose box the segment from A to B
    /// passes. Size bounds all coordinates.
    template <typename Hit>
    bool Any_Near(Pix A, Pix B, Double Size, const Place_Range& Skip, Hit&& Hits) const {
        return Descend(Level_.size() - 1, 0, Query(A, B, Size), Skip, Hits);
    }

private:
    static constexpr std::size_t Fan = 8;
    static constexpr Single Far = std::numeric_limits<Single>::infinity();

    // Never beyond the box of an absent edge.
    static Single Rounded(Double V) {
        constexpr Double Most = std::numeric_limits<Single>::max();
        return static_cast<Single>(std::clamp(V, -Most, Most));
    }

    struct Box_Single {
        Single LX, LY, HX, HY;
        bool operator==(const Box_Single&) const = default;
    };
    static constexpr Box_Single None{Far, Far, -Far, -Far};

    struct Node {
        std::array<Single, Fan> LX, LY, HX, HY;
    };

    // The segment, its box, and how far a computed meeting point can lie off it.
    struct Query {
        Query(Pix A, Pix B, Double Size)
            : LX(Rounded(std::min(A.X, B.X))),
              LY(Rounded(std::min(A.Y, B.Y))),
              HX(Rounded(std::max(A.X, B.X))),
              HY(Rounded(std::max(A.Y, B.Y))),
              At(A),
              dx(B.X - A.X),
              dy(B.Y - A.Y),
              Slack(Size * (std::abs(dx) + std::abs(dy)) * std::numeric_limits<Single>::epsilon()) {
        }

        // Whether the segment's line keeps off child K.
        bool Is_Beside(const Node& N, std::size_t K) const {
            const Double Mid_X = (Double{N.LX[K]} + N.HX[K]) / 2,
                         Mid_Y = (Double{N.LY[K]} + N.HY[K]) / 2;
            const Double Off = dx * (Mid_Y - At.Y) - dy * (Mid_X - At.X);
            const Double Reach =
                std::abs(dx) * (N.HY[K] - Mid_Y) + std::abs(dy) * (N.HX[K] - Mid_X);
            return std::abs(Off) > Reach + Slack;
        }

        Single LX, LY, HX, HY;
        Pix At;
        Double dx, dy, Slack;
    };

    void Set(Long E, const Box_Single& B);
    Box_Single Union(const Node& N) const;

    template <typename Hit>
    bool Descend(std::size_t Lv, std::size_t K, const Query& Q, const Place_Range& Skip,
                 Hit& Hits) const {
        const Node& N = Level_[Lv][K];
        std::array<int, Fan> Meets;
        for (std::size_t C = 0; C < Fan; ++C)
            Meets[C] = static_cast<int>(N.LX[C] <= Q.HX) & static_cast<int>(Q.LX <= N.HX[C]) &
                       static_cast<int>(N.LY[C] <= Q.HY) & static_cast<int>(Q.LY <= N.HY[C]);
        for (std::size_t C = 0; C < Fan; ++C) {
            if (Meets[C] == 0) continue;
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
