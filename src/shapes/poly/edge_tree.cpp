// shapes/poly/edge_tree.cpp - building the boxes, and the two joins.
#include "shapes/poly/edge_tree.h"

#include "geometry/segments.h"

void Edge_Tree::Lay_Out(std::span<const WPt> Pts, bool Closed, std::span<Box_Pix> Memory) {
    Pts_ = Pts.data();
    Nb_Pts_ = static_cast<Long>(Pts.size());
    Nb_ = Closed ? Nb_Pts_ : Nb_Pts_ - 1;
    Box_Pix* At = Memory.data();
    Long N = (Nb_ + Leaf - 1) / Leaf;
    for (std::size_t Lv = 0;; ++Lv, N = (N + 1) / 2) {
        Level_[Lv] = At;
        Count_[Lv] = N;
        Top_ = static_cast<int>(Lv);
        At += N;
        if (N <= 1) break;
    }
}

std::size_t Edge_Tree::Size(Long Nb) {
    Long N = (Nb + Leaf - 1) / Leaf;
    std::size_t Total = static_cast<std::size_t>(N);
    for (; N > 1; Total += static_cast<std::size_t>(N)) N = (N + 1) / 2;
    return Total;
}

Edge_Tree::Edge_Tree(std::span<const WPt> Pts, bool Closed, std::span<Box_Pix> Memory) {
    Lay_Out(Pts, Closed, Memory);
    for (Long K = 0; K < Count(0); ++K) {
        Box_Pix B;
        for (Long E = First_Edge(0, K); E < End_Edge(0, K); ++E) B.Add(From(E));
        B.Add(To(End_Edge(0, K) - 1));
        Level_[0][K] = B;
    }
    for (int Lv = 1; Lv <= Top_; ++Lv) {
        const Box_Pix* Below = Level_[static_cast<std::size_t>(Lv - 1)];
        for (Long K = 0; K < Count(Lv); ++K) {
            Box_Pix B = Below[std::ptrdiff_t{2} * K];
            if (2 * K + 1 < Count(Lv - 1)) B.Add(Below[2 * K + 1]);
            Level_[static_cast<std::size_t>(Lv)][K] = B;
        }
    }
}

namespace {

// Boxes of the edges of one leaf, made once for the pairs of two leaves.
struct Leaf_Boxes {
    Leaf_Boxes(const Edge_Tree& T, Long K)
        : First(T.First_Edge(0, K)), Nb(T.End_Edge(0, K) - First) {
        for (Long I = 0; I < Nb; ++I) Box[static_cast<std::size_t>(I)] = T.Edge_Box(First + I);
    }
    Long First;
    Long Nb;
    std::array<Box_Pix, Edge_Tree::Leaf> Box;
};

// Every pair of an edge of A and one of B whose boxes meet.
template <typename Pair>
class Join {
public:
    Join(const Edge_Tree& A, const Edge_Tree& B, Pair& P, Box_Budget& Budget)
        : A_(A), B_(B), Pair_(P), Budget_(Budget) {}

    void Between(int La, Long Ka, int Lb, Long Kb) {
        if (--Budget_.Left < 0) return;
        if (!A_.Box(La, Ka).Meets(B_.Box(Lb, Kb)) || Pair_.Skips(A_.First_Edge(La, Ka))) return;
        if (La == 0 && Lb == 0) {
            Leaves(Ka, Kb);
        } else if (La >= Lb) {
            Between(La - 1, 2 * Ka, Lb, Kb);
            if (2 * Ka + 1 < A_.Count(La - 1)) Between(La - 1, 2 * Ka + 1, Lb, Kb);
        } else {
            Between(La, Ka, Lb - 1, 2 * Kb);
            if (2 * Kb + 1 < B_.Count(Lb - 1)) Between(La, Ka, Lb - 1, 2 * Kb + 1);
        }
    }

    // The pairs inside one tree, A being B.
    void Within(int Lv, Long K) {
        if (Pair_.Skips(A_.First_Edge(Lv, K))) return;
        if (Lv == 0) {
            Inside_Leaf(K);
            return;
        }
        Within(Lv - 1, 2 * K);
        if (2 * K + 1 >= A_.Count(Lv - 1)) return;
        Between(Lv - 1, 2 * K, Lv - 1, 2 * K + 1);
        Within(Lv - 1, 2 * K + 1);
    }

private:
    void Leaves(Long Ka, Long Kb) {
        const Box_Pix& Whole = B_.Box(0, Kb);
        const Long End = A_.End_Edge(0, Ka);
        const Leaf_Boxes Of_B(B_, Kb);
        Budget_.Left -= Edge_Tree::Leaf;
        for (Long I = A_.First_Edge(0, Ka); I < End; ++I) {
            const Box_Pix Of_I = A_.Edge_Box(I);
            if (!Of_I.Meets(Whole)) continue;
            for (Long J = 0; J < Of_B.Nb; ++J)
                if (Of_I.Meets(Of_B.Box[static_cast<std::size_t>(J)])) {
                    Pair_(I, Of_B.First + J);
                    --Budget_.Left;
                }
        }
    }

    void Inside_Leaf(Long K) {
        const Leaf_Boxes Of(A_, K);
        for (Long I = 0; I + 2 < Of.Nb; ++I)
            for (Long J = I + 2; J < Of.Nb; ++J)
                if (Of.Box[static_cast<std::size_t>(I)].Meets(Of.Box[static_cast<std::size_t>(J)]))
                    Pair_(Of.First + I, Of.First + J);
    }

    const Edge_Tree& A_;
    const Edge_Tree& B_;
    Pair& Pair_;
    Box_Budget& Budget_;
};

// Keeps the smallest pair in scan order, the closing edge last and given first.
class Self_Pairs {
public:
    Self_Pairs(const Edge_Tree& T, bool Closed) : T_(T), Closing_(Closed ? T.Nb() - 1 : -1) {}

    bool Skips(Long First_Edge) const { return Found_.Found && First_Edge > I_; }

    void operator()(Long I, Long J) {
        if (J - I < 2 || (I == 0 && J == Closing_)) return;
        if (J == Closing_) std::swap(I, J);
        if (Found_.Found && (I > I_ || (I == I_ && J >= J_))) return;
        const Pix P1 = T_.From(I), P2 = T_.To(I), P3 = T_.From(J), P4 = T_.To(J);
        const Line_Meet M = Line_Cross(P1, P2, P3, P4);
        if (M.Found == 0 || !In_Span(M.At.X, P1.X, P2.X) || !In_Span(M.At.X, P3.X, P4.X) ||
            !In_Span(M.At.Y, P1.Y, P2.Y) || !In_Span(M.At.Y, P3.Y, P4.Y))
            return;
        Found_ = {true, M.At};
        I_ = I;
        J_ = J;
    }

    const Edge_Meet& Found() const { return Found_; }

private:
    const Edge_Tree& T_;
    Long Closing_;
    Edge_Meet Found_;
    Long I_ = 0, J_ = 0;
};

class Any_Pair {
public:
    Any_Pair(const Edge_Tree& A, const Edge_Tree& B) : A_(A), B_(B) {}
    bool Skips(Long) const { return Found; }
    void operator()(Long I, Long J) {
        if (!Found)
            Found = Seg_Cross(A_.From(I), A_.To(I), B_.From(J), B_.To(J)).Code >= Meet::Cross;
    }
    bool Found = false;

private:
    const Edge_Tree& A_;
    const Edge_Tree& B_;
};

}  // namespace

Edge_Meet First_Self_Meet(const Edge_Tree& Tree, bool Closed, Box_Budget& Budget) {
    Self_Pairs Pairs(Tree, Closed);
    Join<Self_Pairs>(Tree, Tree, Pairs, Budget).Within(Tree.Top(), 0);
    return Pairs.Found();
}

bool Outlines_Meet(const Edge_Tree& A, const Edge_Tree& B, Box_Budget& Budget) {
    Any_Pair Pairs(A, B);
    Join<Any_Pair>(A, B, Pairs, Budget).Between(A.Top(), 0, B.Top(), 0);
    return Pairs.Found;
}
