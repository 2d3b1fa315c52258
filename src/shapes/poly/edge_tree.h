// shapes/poly/edge_tree.h - boxes over the edges of an outline, for finding pairs of edges that
// could meet.
//
// Two segments can only meet where their closed boxes meet, so a test of all pairs may look at
// those pairs alone. The edges stay in their order along the outline, eight to a leaf; each box
// of the next level holds two of the level below.
#pragma once

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "geometry/box.h"
#include "geometry/patience.h"
#include "shapes/poly/work_lists.h"

/// The edges of one outline and their boxes. Edges count from 0; edge e leads from point e to
/// the next one.
class Edge_Tree {
public:
    static constexpr Long Leaf = 8;
    static constexpr int Max_Level = 30;

    /// Boxes for Pts, in Memory, which must outlive the tree. A closed outline has an edge from
    /// its last point to its first.
    Edge_Tree(std::span<const WPt> Pts, bool Closed, std::span<Box_Pix> Memory);
    /// How many boxes a tree over Nb edges needs.
    static std::size_t Size(Long Nb);

    Long Nb() const { return Nb_; }
    int Top() const { return Top_; }
    Long Count(int Lv) const { return Count_[static_cast<std::size_t>(Lv)]; }
    const Box_Pix& Box(int Lv, Long K) const {
        return Level_[static_cast<std::size_t>(Lv)][static_cast<std::size_t>(K)];
    }
    const Box_Pix& Whole() const { return Box(Top_, 0); }
    /// The first edge under a box.
    static Long First_Edge(int Lv, Long K) { return (K << Lv) * Leaf; }
    Long End_Edge(int Lv, Long K) const { return std::min(Nb_, First_Edge(Lv, K + 1)); }

    Pix From(Long E) const { return To_Pix(Pts_[static_cast<std::size_t>(E)]); }
    Pix To(Long E) const {
        return To_Pix(Pts_[E + 1 == Nb_Pts_ ? 0 : static_cast<std::size_t>(E + 1)]);
    }
    Box_Pix Edge_Box(Long E) const {
        Box_Pix B;
        B.Add(From(E));
        B.Add(To(E));
        return B;
    }

private:
    void Lay_Out(std::span<const WPt> Pts, bool Closed, std::span<Box_Pix> Memory);

    const WPt* Pts_ = nullptr;
    Long Nb_Pts_ = 0;
    Long Nb_ = 0;
    int Top_ = 0;
    std::array<Box_Pix*, Max_Level> Level_{};
    std::array<Long, Max_Level> Count_{};
};

/// How many pairs of boxes a search may still look at. It is spent below 0, and what the search
/// gives is then not its answer. Where many boxes lie over each other it is quicker to show that
/// there is nothing to find (Sweep_Edges).
struct Box_Budget {
    static constexpr std::int64_t Endless = std::numeric_limits<std::int64_t>::max();

    explicit Box_Budget(std::size_t Edges)
        : Left(Search_Patience * static_cast<std::int64_t>(Edges)) {}
    bool Is_Spent() const { return Left < 0; }
    std::int64_t Left;
};

/// The pair of edges of one outline that meet at first in scan order: for each edge of the open
/// chain those behind it, then the closing edge against the others. Neighbours are not compared.
struct Edge_Meet {
    bool Found = false;
    Pix At;
};
Edge_Meet First_Self_Meet(const Edge_Tree& Tree, bool Closed, Box_Budget& Budget);

/// Whether an edge of A and an edge of B cross or touch.
bool Outlines_Meet(const Edge_Tree& A, const Edge_Tree& B, Box_Budget& Budget);
