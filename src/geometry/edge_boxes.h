// geometry/edge_boxes.h - boxes over the edges of an outline that loses points.
//
// A query finds the edges that Seg_Cross could find a segment to cross. Boxes are kept in
// Single: the rounding never turns two numbers round, so boxes that meet still meet. Each node
// holds the boxes of eight children side by side, so that the compiler tests them together.
//
// Where only boxes meet, the segment may still keep off. That is told apart with a margin, for
// the meeting point that Seg_Cross works out is rounded: it lies inside both boxes, but strays
// from either line by up to 64 roundings of (slope 1 + slope 2) * X + Y, measured upright. Slopes
// count as 0 for upright segments. Edges that are all but upright stray far; they and the nodes
// above them are looked into whenever boxes meet.
//
// Edges stand in the tree as they follow each other round the outline: neighbours lie close
// together, and a stretch of the outline is a few nodes. But where an outline bends round others
// of its own stretches, as a spiral does, the boxes of long stretches lie over each other. Such an
// outline has its edges sorted by where they lie: a query into a spiral of 1,000,000 points then
// looks at 31 nodes instead of 84, and the spiral takes a fifth less time.
//
// Long slanted edges side by side, as in a star, have boxes that all lie over each other. Once
// queries have looked at too many of them, every box gets a slab as well: the stretch that its
// edges take up across their own mean direction. The margin there is the strays of both lines, for
// slabs are kept in Double.
#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <functional>
#include <span>
#include <vector>

#include "geometry/box.h"
#include "geometry/patience.h"

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
    void Drop(Long E) {
        Set(Slot(E), None);
        --Nb_Left_;
    }
    void Refresh(Long E);
    /// Whether one Refresh serves both edges.
    bool Share_Node(Long E1, Long E2) const { return Slot(E1) / Fan == Slot(E2) / Fan; }
    /// To be called once all edges are put in.
    void Settle();

    /// Whether Lay_Slabs would pay: queries look at many nodes, or half of the edges that have
    /// slabs are gone.
    bool Wants_Slabs() const {
        constexpr std::int64_t Usual = 24, Cost = 16;  // nodes for a query; for laying one slab
        if (!Slab_.empty()) return 4 * Nb_Left_ < Nb_With_Slab_;
        return 64 * Nb_Seen_ > Search_Patience * (Usual * Nb_Query_ + Cost * Nb_);
    }
    /// Ends_Of gives the ends of an edge.
    void Lay_Slabs(const std::function<std::array<Pix, 2>(Long)>& Ends_Of);

    /// Whether Hits(e) for some edge e that is not in Skip and whose box the segment from A to B
    /// passes. Size bounds all coordinates.
    template <typename Hit>
    bool Any_Near(Pix A, Pix B, Double Size, const Place_Range& Skip, Hit&& Hits) {
        ++Nb_Query_;
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

    // Upright segments count as flat.
    static Double Slope_Of(Pix A, Pix B) {
        return A.X == B.X ? 0.0 : std::abs((B.Y - A.Y) / (B.X - A.X));
    }

    // All points P of some edges have nx * P.X + ny * P.Y from Low to High.
    struct Slab {
        Double nx = 0.0, ny = 0.0;
        Double Low = std::numeric_limits<Double>::infinity(), High = -Low;
        Double Slope = 0.0;  // the largest

        void Add(Pix P1, Pix P2) {
            const Double D1 = nx * P1.X + ny * P1.Y, D2 = nx * P2.X + ny * P2.Y;
            Low = std::min({Low, D1, D2});
            High = std::max({High, D1, D2});
            Slope = std::max(Slope, Slope_Of(P1, P2));
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
                     std::numeric_limits<Single>::epsilon()),
              Slope(Slope_Of(A, B)),
              Size(Size) {}

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

        bool Is_Off(const Slab& S) const {
            const Double D1 = S.nx * At.X + S.ny * At.Y;
            const Double D2 = S.nx * (At.X + dx) + S.ny * (At.Y + dy);
            const Double Room =
                512 * std::numeric_limits<Double>::epsilon() * ((S.Slope + Slope) * Size + Size);
            return std::max(D1, D2) < S.Low - Room || std::min(D1, D2) > S.High + Room;
        }

        Single LX, LY, HX, HY;
        Pix At;
        Double dx, dy, Margin, Slope, Size;
    };

    std::size_t Slot(Long E) const {
        const auto I = static_cast<std::size_t>(E);
        return Slot_.empty() ? I : static_cast<std::size_t>(Slot_[I]);
    }
    Long Edge_At(std::size_t Slot) const {
        return Edge_.empty() ? static_cast<Long>(Slot) : Edge_[Slot];
    }
    void Set(std::size_t Slot, const Box_Single& B) { Level_[0][Slot / Fan].Set(Slot % Fan, B); }
    Box_Single Get(std::size_t Slot) const { return Level_[0][Slot / Fan].Get(Slot % Fan); }
    static Slab Across(Pix P1, Pix P2);
    static Box_Single Union(const Node& N);
    void Refresh_All();
    bool Is_Overlaid() const;
    void Sort_By_Place();
    void Sort_The_Other_Way();
    Double Lay_All_Slabs(std::span<const std::array<Pix, 2>> Ends);
    void Lay_Slabs(std::size_t Lv, std::span<const std::array<Pix, 2>> Ends);
    bool Is_Off(const Query& Q, std::size_t Lv, std::size_t Child) const {
        return !Slab_.empty() && Q.Is_Off(Slab_[Lv][Child]);
    }

    template <typename Hit>
    bool Descend(std::size_t Lv, std::size_t K, const Query& Q, const Place_Range& Skip,
                 Hit& Hits) {
        const Node& N = Level_[Lv][K];
        ++Nb_Seen_;
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
                const Long E = Edge_At(Child);
                if (!Skip.Holds(E) && !Q.Is_Beside(N, C) && !Is_Off(Q, Lv, Child) && Hits(E))
                    return true;
                continue;
            }
            const int Shift = 3 * static_cast<int>(Lv);
            if (Edge_.empty() && Skip.Holds(static_cast<Long>(Child << Shift),
                                            static_cast<Long>((Child + 1) << Shift)))
                continue;
            if (!Q.Is_Beside(N, C) && !Is_Off(Q, Lv, Child) &&
                Descend(Lv - 1, Child, Q, Skip, Hits))
                return true;
        }
        return false;
    }

    Long Nb_ = 0;
    std::vector<std::vector<Node>> Level_;
    std::vector<Long> Slot_, Edge_;        // where edges stand in the tree; empty when in order
    std::vector<std::vector<Slab>> Slab_;  // of each child of a level's nodes; empty without slabs
    std::int64_t Nb_Query_ = 0, Nb_Seen_ = 0, Nb_Left_ = 0, Nb_With_Slab_ = 0;
};
