// geometry/point_tree.h - points in a balanced tree of boxes, each switched on or off, searched by
// triangle.
#pragma once

#include <algorithm>
#include <functional>
#include <span>
#include <vector>

#include "core/numbers.h"
#include "geo/calibration.h"
#include "geometry/exact_turn.h"

class Point_Tree {
public:
    /// Holds all Points, switched off. They must outlive the tree.
    explicit Point_Tree(std::span<const Pix> Points);

    /// Keeps only the points I for which Is_Left(I) holds, as they are switched. Where many are
    /// gone, a search is quicker then.
    void Thin_Out(const std::function<bool(Long)>& Is_Left);

    /// Switches point I on or off.
    void Switch(Long I, bool On);

    /// Whether some point that is on and lies in the clockwise triangle A B C, its border
    /// included, satisfies Test(I).
    template <typename Test>
    bool Any_In(Pix A, Pix B, Pix C, const Test& Holds) const {
        return Search(0, Triangle(A, B, C), Holds);
    }

private:
    static constexpr Long Leaf_Size = 8;

    struct Node {
        Pix Low{}, High{};           // box of its points, on or off
        Long First = 0, Last = 0;    // its points are Order[First..Last - 1]
        Long Nb_On = 0;              // of them, those that are on
        Long Parent = -1;            // -1 at the root
        Long Left = -1, Right = -1;  // -1 in a leaf
    };
    struct Triangle {
        Triangle(Pix A, Pix B, Pix C)
            : A(A),
              B(B),
              C(C),
              Low{std::min({A.X, B.X, C.X}), std::min({A.Y, B.Y, C.Y})},
              High{std::max({A.X, B.X, C.X}), std::max({A.Y, B.Y, C.Y})} {}
        Pix A, B, C;
        Pix Low, High;  // its box: beside a thin one its edges tell little
    };

    Long Build(Long First, Long Last, Long Parent);

    // Whether the box lies on the outer side of the edge from P to Q: its innermost corner does.
    static bool Beyond(const Node& N, Pix P, Pix Q) {
        const Pix Corner{Q.Y > P.Y ? N.Low.X : N.High.X, Q.X > P.X ? N.High.Y : N.Low.Y};
        return Exact_Turn(P, Q, Corner) < 0;
    }
    static bool Apart(const Node& N, const Triangle& T) {
        return N.High.X < T.Low.X || T.High.X < N.Low.X || N.High.Y < T.Low.Y ||
               T.High.Y < N.Low.Y || Beyond(N, T.A, T.B) || Beyond(N, T.B, T.C) ||
               Beyond(N, T.C, T.A);
    }
    static bool Inside(Pix P, const Triangle& T) {
        return Exact_Turn(T.A, T.B, P) >= 0 && Exact_Turn(T.B, T.C, P) >= 0 &&
               Exact_Turn(T.C, T.A, P) >= 0;
    }

    template <typename Test>
    bool Search(Long At, const Triangle& T, const Test& Holds) const {
        const Node& N = Nodes[At];
        if (N.Nb_On == 0 || Apart(N, T)) return false;
        if (N.Left >= 0) return Search(N.Left, T, Holds) || Search(N.Right, T, Holds);
        for (Long K = N.First; K < N.Last; ++K) {
            const Long I = Order[K];
            if (Is_On[I] && Inside(Points[I], T) && Holds(I)) return true;
        }
        return false;
    }

    std::span<const Pix> Points;
    std::vector<Long> Order;
    std::vector<Long> Leaf_Of;
    std::vector<char> Is_On;
    std::vector<Node> Nodes;
};
