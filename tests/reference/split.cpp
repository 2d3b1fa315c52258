// reference/split.cpp - convex pieces, run after run taken off an outline.
//
// The split of one polygon in one pass is unsound when
// - its walk comes back to where it was: a walk state is the step it is at, 1 or 2, and the
//   vertex v that this step looks at; the same state twice with no cut in between never ends;
// - or twice the signed area of one of the pieces that this split produced, the sum of
//   x1 * y2 - x2 * y1 over its edges from the first point on, closing edge last, is below -1e-6.
// Its pieces are then replaced by the ears of the polygon as it stood before the pass.
#include <algorithm>
#include <set>

#include "geometry/ear_clip.h"
#include "geometry/segments.h"
#include "reference/plain.h"

namespace reference {

namespace {

using Outline = std::vector<WPt>;

// A concave outline, and the walk through it to the run that is taken off next.
class Walk {
public:
    explicit Walk(const Outline& L) : L_(L) {}

    // False when it would never end; else the run is a to v.
    bool Find_Run() {
        for (;;) {
            if (!Step_1() || !Steps_2_And_3()) return false;
            a = Prev(v);
            if (Step_5()) return true;
        }
    }
    bool Is_Reflex(std::size_t I) const { return Turn(Prev(I), I, Next(I)) == 1; }
    bool Is_Convex() const {
        for (std::size_t I = 0; I < L_.size(); ++I)
            if (Is_Reflex(I)) return false;
        return true;
    }

    std::size_t v = 0, a = 0;

private:
    Pix At(std::size_t I) const { return To_Pix(L_[I]); }
    std::size_t Next(std::size_t I) const { return (I + 1) % L_.size(); }
    std::size_t Prev(std::size_t I) const { return (I + L_.size() - 1) % L_.size(); }
    Int Turn(std::size_t A, std::size_t B, std::size_t C) const {
        return static_cast<Int>(Sens_3Pts(At(A), At(B), At(C)));
    }

    bool Diag_Crosses(std::size_t A, std::size_t B) const {
        for (std::size_t I = B; I != A; I = Next(I)) {
            const std::size_t J = Next(I);
            if (I == A || I == B || J == A || J == B) continue;
            if (Seg_Cross(At(I), At(J), At(A), At(B)).Code == Meet::Cross) return true;
        }
        return false;
    }

    bool Run_Is_Convex(std::size_t A, std::size_t B) const {
        for (std::size_t I = A;; I = Next(I)) {
            if (Turn(I == A ? B : Prev(I), I, I == B ? A : Next(I)) == 1) return false;
            if (I == B) return true;
        }
    }

    // Whether the run from A to B lies above or below its vertex V, but not both.
    bool Is_Clear(std::size_t A, std::size_t V, std::size_t B) const {
        const Pix Top{At(V).X, -50000.0}, Bottom{At(V).X, 50000.0};
        bool Above = false, Below = false;
        const auto Note = [&](std::size_t I, std::size_t J) {
            const Seg_Meet M = Seg_Cross(Top, Bottom, At(I), At(J));
            if (M.Code < Meet::Cross) return;
            Above |= M.At.Y < At(V).Y;
            Below |= M.At.Y > At(V).Y;
        };
        for (std::size_t I = A; I != B; I = Next(I)) Note(I, Next(I));
        Note(B, A);
        return !(Above && Below);
    }

    // False when the walk was in this state before.
    bool Enter(int Step) { return Seen_.insert({Step, v}).second; }

    bool Step_1() {
        for (;;) {
            if (!Enter(1)) return false;
            const bool Found = Is_Reflex(v);
            v = Next(v);
            if (Found) return true;
        }
    }

    bool Steps_2_And_3() {
        for (;; v = Next(v)) {
            if (!Enter(2)) return false;
            if (!Is_Reflex(v) && !Diag_Crosses(Prev(v), Next(v))) return true;
        }
    }

    // True when the run is complete, false to go back to step 1.
    bool Step_5() {
        for (;;) {
            const std::size_t w = Next(v), n = Next(w);
            const bool Turns_Left = Turn(v, w, n) == 1;
            v = w;
            if (Turns_Left || Diag_Crosses(a, n)) return true;
            if (Run_Is_Convex(a, n)) continue;
            const std::size_t Size = (n + L_.size() - a) % L_.size() + 1;
            return Is_Clear(a, w, n) || Size > 3;
        }
    }

    const Outline& L_;
    std::set<std::pair<int, std::size_t>> Seen_;
};

// The run from place A to place B, which goes but for its ends; the rest begins at A.
Outline Take_Run(Outline& L, std::size_t A, std::size_t B) {
    const auto Size = static_cast<std::ptrdiff_t>((B + L.size() - A) % L.size() + 1);
    std::rotate(L.begin(), L.begin() + static_cast<std::ptrdiff_t>(A), L.end());
    Outline Run(L.begin(), L.begin() + Size);
    L.erase(L.begin() + 1, L.begin() + Size - 1);
    return Run;
}

std::vector<Outline> Divide_Convex(const Outline& L, Long Limit) {
    const auto Nb = static_cast<Long>(L.size());
    const Long h = Limit / 2 - 5;
    const Long Pieces = (Nb + h - 1) / h, Size = Nb / Pieces, Rest = Nb - Pieces * Size;
    std::vector<Outline> Found;
    Long Start = 1;
    for (Long p = 1; p <= Pieces; ++p) {
        const Long m = p == 1 && (Rest == 1 || Rest == 2) ? 2 : p == Pieces ? Nb - Start + 1 : Size;
        Outline Run(L.begin() + Start - 1, L.begin() + Start + m - 1);
        Run.push_back(L[static_cast<std::size_t>(Start == 1 || m == 1 ? m : 0)]);
        Found.push_back(Run);
        Start = Start + m - 1;
    }
    return Found;
}

// False when the walk would never end.
bool Split_Plain(Outline L, Long Limit, Long& Rounds, std::vector<Outline>& Found) {
    for (;;) {
        ++Rounds;
        Walk Round(L);
        const bool Is_Convex = L.size() < 4 || Round.Is_Convex();
        if (Is_Convex && (L.size() < 4 || static_cast<Long>(L.size()) < Limit)) {
            Found.push_back(L);
            return true;
        }
        if (Is_Convex) {
            for (const Outline& O : Divide_Convex(L, Limit)) Found.push_back(O);
            return true;
        }
        if (!Round.Find_Run()) return false;
        Found.push_back(Take_Run(L, Round.a, Round.v));
    }
}

bool Runs_Wrong_Way(const Outline& O) {
    Double Sum = 0.0;
    for (std::size_t I = 0; I < O.size(); ++I) {
        const WPt &P1 = O[I], &P2 = O[(I + 1) % O.size()];
        Sum += P1.X * P2.Y - P2.X * P1.Y;
    }
    return Sum < -1e-6;
}

}  // namespace

Polys Split(Polys List, Long Limit, Long& Rounds) {
    for (int Pass = 1; Pass <= 2; ++Pass) {
        Polys Out;
        for (const Poly& W : List) {
            std::vector<Outline> Found;
            if (!Split_Plain(W.P, Limit, Rounds, Found) ||
                std::ranges::any_of(Found, Runs_Wrong_Way)) {
                std::vector<Pix> Whole;
                for (const WPt& P : W.P) Whole.push_back(To_Pix(P));
                Found.clear();
                for (const Ear& E : Ear_Clip(Whole))
                    Found.push_back({W.P[E[0]], W.P[E[1]], W.P[E[2]]});
            }
            for (const Outline& O : Found) {
                Out.push_back(W);
                Out.back().P = O;
            }
        }
        List = Out;
    }
    return List;
}

}  // namespace reference
