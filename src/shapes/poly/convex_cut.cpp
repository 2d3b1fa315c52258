// shapes/poly/convex_cut.cpp - the cut points of a polygon on a line, and the pieces between them.
#include "shapes/poly/convex_cut.h"

#include <cmath>
#include <utility>

namespace {

// Within the tolerance of a grid line, ends included.
bool Is_On(Double V, Double Line, Double Tol) {
    return V - Tol <= Line && Line <= V + Tol;
}

// -1 before the line, 0 on it, 1 behind it.
int Side_Of(Double V, Double Line, Double Tol) {
    if (Is_On(V, Line, Tol)) return 0;
    return V < Line ? -1 : 1;
}

// The rule of both Seg_Cut: V1 and V2 are the coordinates that the line fixes, L1 and L2 two
// points of it. The meeting point is worked out only where it has a use.
Seg_Cut Cut_Segment(Pix P1, Pix P2, Double V1, Double V2, Double Line, Double Tol, Pix L1, Pix L2) {
    if (V1 == V2) return {};
    if (Is_On(V1, Line, Tol)) return {Meet::End, P1};
    if (Is_On(V2, Line, Tol)) return {Meet::End, P2};
    const bool Between = (V1 < Line && Line < V2) || (V2 < Line && Line < V1);
    if (!Between) return {Meet::Miss, {}};
    return {Meet::Cross, Line_Cross(P1, P2, L1, L2).At};
}

// A place where the polygon meets the line, on the edge between two of its points.
struct CutPt {
    std::size_t From_Ix = 0;
    std::size_t To_Ix = 0;
    Meet Code = Meet::Parallel;
    Pix At;
};

template <typename Axis>
class Cutter {
public:
    Cutter(const Axis& A, Double Line, std::span<const Pix> P) : A_(A), Line_(Line), P_(P) {}

    Cut_Result Run(Two_Pieces& Two) {
        if (Find_Plain_Cuts()) {
            if (Nb_Cut_ == 0) return Cut_Result::Whole;
            Dec_2Poly(Two);
            return Cut_Result::Two;
        }
        Find_Cuts();
        if (Needs_Second_Look()) {
            if (!Has_Both_Sides(0, P_.size())) return Cut_Result::Whole;
            Find_Passages();
        }
        if (Nb_Cut_ > 2) return Cut_Result::Too_Often;
        if (Nb_Cut_ == 2) {
            Dec_2Poly(Two);
            return Cut_Result::Two;
        }
        if (Nb_Cut_ == 0 || P_.size() != 2 || Cut_[0].Code != Meet::Cross) return Cut_Result::Whole;
        Two.Stack.insert(Two.Stack.end(), {Cut_[0].At, P_[1], P_[0], Cut_[0].At});
        Two.Nb_Second = Two.Nb_First = 2;
        return Cut_Result::Two;
    }

private:
    std::size_t Next(std::size_t I) const { return I + 1 == P_.size() ? 0 : I + 1; }
    int Side(std::size_t I) const { return Side_Of(A_.Across(P_[I]), Line_, A_.Tol); }

    // The usual case, settled in one walk: no vertex is on the line, and the side changes twice or
    // never. False when it is not so; nothing is found then.
    bool Find_Plain_Cuts() {
        if (P_.size() < 3) return false;
        const int First = Side(0);
        if (First == 0) return false;
        std::array<std::size_t, 2> Edge;
        std::size_t Nb = 0;
        int Before = First;
        for (std::size_t I = 1; I <= P_.size(); ++I) {
            const int Now = I < P_.size() ? Side(I) : First;
            if (Now == 0 || (Now != Before && Nb == 2)) return false;
            if (Now != Before) Edge[Nb++] = I - 1;
            Before = Now;
        }
        for (std::size_t K = 0; K < Nb; ++K) {
            const std::size_t I = Edge[K], J = Next(I);
            Cut_[K] = {I, J, Meet::Cross, A_.Cross(P_[I], P_[J], Line_)};
        }
        Nb_Cut_ = Nb;
        return true;
    }

    // Whether this is the vertex of a cut found on the neighbouring edge.
    bool Is_Found(const CutPt& C) const {
        for (std::size_t K = 0; K < Nb_Cut_; ++K) {
            const CutPt& Old = Cut_[K];
            const bool Neighbour = C.From_Ix == Old.From_Ix || C.From_Ix == Old.To_Ix ||
                                   C.To_Ix == Old.From_Ix || C.To_Ix == Old.To_Ix;
            if (Neighbour && std::abs(A_.Along(C.At) - A_.Along(Old.At)) <= A_.Tol_Along)
                return true;
        }
        return false;
    }

    // Stops behind the third: more make no difference.
    void Find_Cuts() {
        const std::size_t Nb_Edge = P_.size() == 2 ? 1 : P_.size();
        for (std::size_t I = 0; I < Nb_Edge && Nb_Cut_ < Cut_.size(); ++I) {
            const std::size_t J = Next(I);
            const Seg_Cut S = A_.Cut(P_[I], P_[J], Line_);
            if (S.Code < Meet::Cross) continue;
            const CutPt C{I, J, S.Code, S.At};
            if (S.Code == Meet::Cross || !Is_Found(C)) Cut_[Nb_Cut_++] = C;
        }
    }

    // Whether points First to End - 1 lie both before and behind the line.
    bool Has_Both_Sides(std::size_t First, std::size_t End, int Known = 0) const {
        for (std::size_t I = First; I < End; ++I) {
            const int S = Side(I);
            if (S * Known < 0) return true;
            if (S != 0) Known = S;
        }
        return false;
    }

    int Some_Side(std::size_t First, std::size_t End) const {
        for (std::size_t I = First; I < End; ++I)
            if (const int S = Side(I); S != 0) return S;
        return 0;
    }

    // The tolerances can make a convex polygon look as if the line met it more or less often than
    // twice, or met it where a piece would still lie on both sides.
    bool Needs_Second_Look() const {
        if (P_.size() < 3) return false;
        if (Nb_Cut_ > 2) return true;
        if (Nb_Cut_ < 2) return Has_Both_Sides(0, P_.size());
        // Cuts lie on the line, so only the vertices between them count.
        const std::size_t One = Cut_[0].From_Ix + 1, Two = Cut_[1].From_Ix + 1;
        return Has_Both_Sides(One, Two) || Has_Both_Sides(0, One, Some_Side(Two, P_.size())) ||
               Has_Both_Sides(Two, P_.size());
    }

    // The changes of side on the way round, from a vertex off the line to the next such vertex.
    // Exactly two take the place of the cuts.
    void Find_Passages() {
        std::array<CutPt, 2> Passage;
        std::size_t Nb = 0, Start = 0;
        while (Side(Start) == 0) ++Start;
        std::size_t I = Start;
        do {
            std::size_t J = Next(I);
            while (Side(J) == 0) J = Next(J);
            if (Side(I) != Side(J)) {
                if (Nb == Passage.size()) return;
                const std::size_t N = Next(I);
                if (N == J)
                    Passage[Nb++] = {I, J, Meet::Cross, A_.Cross(P_[I], P_[J], Line_)};
                else
                    Passage[Nb++] = {I, N, Meet::End, P_[N]};
            }
            I = J;
        } while (I != Start);
        Cut_[0] = Passage[0];
        Cut_[1] = Passage[1];
        Nb_Cut_ = 2;
    }

    // Piece one runs from the first cut to the second, piece two on round to the first again.
    // (The cuts stand on two edges, so the first one's is never the last.)
    void Dec_2Poly(Two_Pieces& Two) {
        if (Cut_[1].From_Ix < Cut_[0].From_Ix) std::swap(Cut_[0], Cut_[1]);
        const auto First = P_.begin();
        const auto One_End = First + static_cast<std::ptrdiff_t>(Cut_[0].From_Ix + 1);
        const auto Two_End = First + static_cast<std::ptrdiff_t>(Cut_[1].From_Ix + 1);
        auto& To = Two.Stack;
        Two.Nb_First = Cut_[1].From_Ix - Cut_[0].From_Ix + 2;
        Two.Nb_Second = P_.size() + 4 - Two.Nb_First;
        To.push_back(Cut_[1].At);
        To.insert(To.end(), Two_End, P_.end());
        To.insert(To.end(), First, One_End);
        To.push_back(Cut_[0].At);
        To.push_back(Cut_[0].At);
        To.insert(To.end(), One_End, Two_End);
        To.push_back(Cut_[1].At);
    }

    const Axis& A_;
    Double Line_;
    std::span<const Pix> P_;
    std::array<CutPt, 3> Cut_;
    std::size_t Nb_Cut_ = 0;
};

}  // namespace

Seg_Cut Seg_Cut_Horiz(Pix P1, Pix P2, Double Line_Y, Double Tol) {
    return Cut_Segment(P1, P2, P1.Y, P2.Y, Line_Y, Tol, {-100, Line_Y}, {100, Line_Y});
}

Seg_Cut Seg_Cut_Vert(Pix P1, Pix P2, Double Line_X, Double Tol) {
    return Cut_Segment(P1, P2, P1.X, P2.X, Line_X, Tol, {Line_X, -100}, {Line_X, 100});
}

Cut_Result Convex_Cut(const Parallels& A, Double Line, std::span<const Pix> Polygon,
                      Two_Pieces& Two) {
    return Cutter(A, Line, Polygon).Run(Two);
}

Cut_Result Convex_Cut(const Meridians& A, Double Line, std::span<const Pix> Polygon,
                      Two_Pieces& Two) {
    return Cutter(A, Line, Polygon).Run(Two);
}
