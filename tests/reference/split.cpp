// reference/split.cpp - convex pieces, run after run taken off an outline.
//
// The split of one polygon in one pass is unsound when
// - its walk comes back to where it was: a walk state is the step it is at, 1 or 2, and the
//   vertex v that this step looks at; the same state twice with no cut in between never ends;
// - or twice the signed area of one of the pieces that this split produced, the sum of
//   x1 * y2 - x2 * y1 over its edges from the first point on, closing edge last, is below -1e-6.
// Its pieces are then replaced by the ears of the polygon as it stood before the pass.
#include <set>
#include <span>
#include <utility>

#include "geometry/ear_clip.h"
#include "geometry/segments.h"
#include "reference/polygons.h"

namespace reference {

namespace {

Pix At(Long I) {
    return Pix_Of(Tab_WPt[I]);
}

Long Next(const WPoly& W, Long I) {
    return I == W.Last ? W.First : I + 1;
}
Long Prev(const WPoly& W, Long I) {
    return I == W.First ? W.Last : I - 1;
}

bool Is_Reflex(const WPoly& W, Long I) {
    return Sens_3Pts(At(Prev(W, I)), At(I), At(Next(W, I))) == 1;
}

bool Is_Convex(const WPoly& W) {
    for (Long I = W.First; I <= W.Last; ++I)
        if (Is_Reflex(W, I)) return false;
    return true;
}

// Number of points from a to b, going forward.
Long Run_Size(const WPoly& W, Long a, Long b) {
    Long Size = 1;
    for (Long I = a; I != b; I = Next(W, I)) ++Size;
    return Size;
}

bool Diag_Crosses(const WPoly& W, Long a, Long b) {
    for (Long I = b; I != a; I = Next(W, I)) {
        const Long J = Next(W, I);
        if (I == a || I == b || J == a || J == b) continue;
        if (Seg_Cross(At(I), At(J), At(a), At(b)).Code == Meet::Cross) return true;
    }
    return false;
}

bool Run_Is_Convex(const WPoly& W, Long a, Long b) {
    for (Long I = a;; I = Next(W, I)) {
        const Long Before = I == a ? b : Prev(W, I);
        const Long After = I == b ? a : Next(W, I);
        if (Sens_3Pts(At(Before), At(I), At(After)) == 1) return false;
        if (I == b) return true;
    }
}

// Returns clear.
bool Vertex_In_Run(const WPoly& W, Long a, Long v, Long b, Long& Size) {
    const Pix Top{At(v).X, -50000.0}, Bottom{At(v).X, 50000.0};
    bool Above = false, Below = false;
    const auto Note = [&](Long I, Long J) {
        const Seg_Meet M = Seg_Cross(Top, Bottom, At(I), At(J));
        if (M.Code < Meet::Cross) return;
        if (M.At.Y < At(v).Y) Above = true;
        if (M.At.Y > At(v).Y) Below = true;
    };
    for (Long I = a; I != b; I = Next(W, I)) Note(I, Next(W, I));
    Note(b, a);
    Size = Run_Size(W, a, b);
    return !(Above && Below);
}

void Cut_Run(Long K, Long a, Long b) {
    WPoly& W = Tab_WPoly[K];
    std::vector<WPt> List{WPt{}};
    Long I = a;
    for (Long n = 1; n <= W.Nb; ++n, I = Next(W, I)) List.push_back(Tab_WPt[I]);
    const Long m = Run_Size(W, a, b);
    NPoly_Append(W, {List.begin() + 1, List.begin() + 1 + m});
    Long To = W.First;
    Tab_WPt[To] = List[1];
    for (Long n = m; n <= W.Nb; ++n) Tab_WPt[++To] = List[n];
    W.Last = To;
    W.Nb = W.Last - W.First + 1;
}

// The walk through a concave polygon to the run that is taken off next.
class Walk {
public:
    explicit Walk(const WPoly& W) : W(W), v(W.First) {}

    // False when it would never end; else the run is a to v.
    bool Find_Run() {
        for (;;) {
            if (!Step_1() || !Steps_2_And_3()) return false;
            a = Prev(W, v);
            if (Step_5()) return true;
        }
    }

    const WPoly& W;
    Long v;
    Long a = 0;

private:
    // False when the walk was in this state before.
    bool Enter(int Step) { return Seen.insert({Step, v}).second; }

    bool Step_1() {
        for (;;) {
            if (!Enter(1)) return false;
            const bool Found = Is_Reflex(W, v);
            v = Next(W, v);
            if (Found) return true;
        }
    }

    bool Steps_2_And_3() {
        for (;;) {
            if (!Enter(2)) return false;
            if (!Is_Reflex(W, v) && !Diag_Crosses(W, Prev(W, v), Next(W, v))) return true;
            v = Next(W, v);
        }
    }

    // True when the run is complete, false to go back to step 1.
    bool Step_5() {
        for (;;) {
            const Long w = Next(W, v), n = Next(W, w);
            const bool Turns_Left = Sens_3Pts(At(v), At(w), At(n)) == 1;
            v = w;
            if (Turns_Left || Diag_Crosses(W, a, n)) return true;
            if (Run_Is_Convex(W, a, n)) continue;
            Long Size = 0;
            return Vertex_In_Run(W, a, w, n, Size) || Size > 3;
        }
    }

    std::set<std::pair<int, Long>> Seen;
};

void Divide_Convex(Long K, Long Limit) {
    const Long Nb = Tab_WPoly[K].Nb;
    const Long h = Limit / 2 - 5;
    Long Pieces = Nb / h;
    if (Nb - h * Pieces != 0) ++Pieces;
    const Long Size = Nb / Pieces;
    const Long Rest = Nb - Pieces * Size;
    Long Start = 1;
    for (Long p = 1; p <= Pieces; ++p) {
        Long m = Size;
        if (p == 1 && (Rest == 1 || Rest == 2))
            m = 2;
        else if (p == Pieces)
            m = Nb - Start + 1;
        Copy_Run(K, Start, m);
        Start = Start + m - 1;
    }
}

// False when the walk would never end.
bool Split_Plain(Long K, Long Limit) {
    const WPoly& W = Tab_WPoly[K];
    for (;;) {
        ++Counter;
        if (W.Nb < 4) {
            Copy_Run(K, 1, W.Nb - 1);
            return true;
        }
        if (Is_Convex(W)) {
            if (W.Nb < Limit)
                Copy_Run(K, 1, W.Nb - 1);
            else
                Divide_Convex(K, Limit);
            return true;
        }
        Walk Round(W);
        if (!Round.Find_Run()) return false;
        Cut_Run(K, Round.a, Round.v);
    }
}

bool Runs_Wrong_Way(const WPoly& Piece) {
    Double Sum = 0.0;
    for (Long I = Piece.First; I <= Piece.Last; ++I) {
        const WPt& P1 = Tab_NPt[I];
        const WPt& P2 = Tab_NPt[I == Piece.Last ? Piece.First : I + 1];
        Sum += P1.X * P2.Y - P2.X * P1.Y;
    }
    return Sum < -1e-6;
}

void Split_In_Ears(const WPoly& Whole, const std::vector<WPt>& Points) {
    std::vector<Pix> Outline;
    for (const WPt& P : Points) Outline.push_back(Pix_Of(P));
    for (const Ear& E : Ear_Clip(Outline))
        NPoly_Append(Whole, {Points[E[0]], Points[E[1]], Points[E[2]]});
}

void Split_One(Long K, Long Limit) {
    const WPoly Whole = Tab_WPoly[K];
    std::vector<WPt> Points;
    for (Long I = Whole.First; I <= Whole.Last; ++I) Points.push_back(Tab_WPt[I]);
    const Long First_Piece = Nb_NPoly + 1, Pts_Before = Nb_NPt;
    bool Sound = Split_Plain(K, Limit);
    for (Long P = First_Piece; P <= Nb_NPoly; ++P)
        if (Runs_Wrong_Way(Tab_NPoly[P])) Sound = false;
    if (Sound) return;
    Tab_NPoly.Truncate(First_Piece - 1);
    Tab_NPt.Truncate(Pts_Before);
    Split_In_Ears(Whole, Points);
}

}  // namespace

void Copy_Run(Long K, Long Start, Long Count) {
    const WPoly& W = Tab_WPoly[K];
    const auto Place = [&](Long n) { return Tab_WPt[W.First + n - 1]; };
    std::vector<WPt> Points;
    for (Long n = Start; n <= Start + Count - 1; ++n) Points.push_back(Place(n));
    Points.push_back(Start == 1 || Count == 1 ? Place(Count + 1) : Place(1));
    NPoly_Append(W, Points);
}

void Poly_Split_Max(Long Limit) {
    Stages.push_back("Concave/convexe");
    Counter = 0;
    for (int Pass = 1; Pass <= 2; ++Pass) {
        Tab_NPoly.Dimension(Nb_WPoly + 10);
        Tab_NPt.Dimension(Fix_Lng(Nb_WPt * 1.2));
        for (Long K = 1; K <= Nb_WPoly; ++K) Split_One(K, Limit);
        WPoly_Commit();
    }
}

}  // namespace reference
