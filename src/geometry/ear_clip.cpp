// geometry/ear_clip.cpp - ears cut off in turns round the outline, so that triangles stay compact.
//
// In a simple outline cutting an ear changes only whether its two neighbours are ears, so each
// point is tested at first and again after a neighbour is gone. Tests are exact, so a simple
// outline never runs out of ears. One that is not simple can; the rules are then relaxed.
#include "geometry/ear_clip.h"

#include <cstdint>

#include "geometry/exact_turn.h"
#include "geometry/point_tree.h"
#include "geometry/segments.h"

namespace {

// How far to look for a right turn when nothing else can be cut. Keeps a tangle linear.
constexpr int Longest_Search = 100;

class Clipper {
public:
    explicit Clipper(std::span<const Pix> Outline);
    std::vector<Ear> Run();

private:
    struct Turn_To_Test {
        Long V;
        std::uint32_t Stamp;  // the wish holds while it is the newest one for V
    };

    int Turn(Long V) const { return Exact_Turn(P[Prev[V]], P[V], P[Next[V]]); }
    bool Is_Spike(Long V) const;
    bool Is_Ear(Long V) const;
    bool Enters(Long Q, Long W, Long V) const;
    void Wish(Long V) { Queue.push_back({V, ++Stamp[V]}); }
    void Wish_All();
    void Test(Long V);
    void Cut(Long V);
    void Take_Out(Long V);
    void Force();

    std::span<const Pix> P;
    std::vector<Long> Prev, Next;  // round the points that are left; Next is -1 at those gone
    std::vector<std::uint32_t> Stamp;
    std::vector<Turn_To_Test> Queue;
    std::size_t Head = 0;
    Point_Tree Not_Right;  // on: the points left that make no right turn; only they can block
    Long Left;
    Long Held;    // by the tree; those that are gone slow it down
    Long At = 0;  // some point that is left
    bool Touching = false;
    std::vector<Ear> Ears;
};

// Twice the signed area, taken from the first point so that it stays sharp far from (0, 0).
Double Signed_Area(std::span<const Pix> P) {
    Double Sum = 0.0;
    for (std::size_t I = 2; I < P.size(); ++I) Sum += Cross_Z(P[0], P[I - 1], P[I]);
    return Sum;
}

Clipper::Clipper(std::span<const Pix> Outline)
    : P(Outline),
      Prev(P.size()),
      Next(P.size()),
      Stamp(P.size()),
      Not_Right(P),
      Left(static_cast<Long>(P.size())),
      Held(Left) {
    for (Long V = 0; V < Left; ++V) {
        Prev[V] = V == 0 ? Left - 1 : V - 1;
        Next[V] = V == Left - 1 ? 0 : V + 1;
    }
    if (Signed_Area(P) < 0.0) Prev.swap(Next);
    for (Long V = 0; V < Left; ++V) Not_Right.Switch(V, Turn(V) <= 0);
    Ears.reserve(P.size());
}

// Whether the path comes straight back at V, or does not move there.
bool Clipper::Is_Spike(Long V) const {
    const Pix A = P[Prev[V]], B = P[Next[V]], Tip = P[V];
    if (A == Tip || B == Tip) return true;
    if (A.X != Tip.X) return (A.X < Tip.X) == (B.X < Tip.X) && B.X != Tip.X;
    return (A.Y < Tip.Y) == (B.Y < Tip.Y) && B.Y != Tip.Y;
}

// Whether the edge from Q, a point in the triangle at V, to W runs into the triangle.
bool Clipper::Enters(Long Q, Long W, Long V) const {
    const auto Passes = [&](Long From, Long To) {
        return Exact_Turn(P[From], P[To], P[Q]) > 0 || Exact_Turn(P[From], P[To], P[W]) > 0;
    };
    return Passes(Prev[V], V) && Passes(V, Next[V]) && Passes(Next[V], Prev[V]);
}

bool Clipper::Is_Ear(Long V) const {
    const Long A = Prev[V], B = Next[V];
    return !Not_Right.Any_In(P[A], P[V], P[B], [&](Long Q) {
        if (Q == A || Q == V || Q == B) return false;
        return !Touching || Enters(Q, Prev[Q], V) || Enters(Q, Next[Q], V);
    });
}

void Clipper::Take_Out(Long V) {
    const Long A = Prev[V], B = Next[V];
    Not_Right.Switch(V, false);
    Next[A] = B;
    Prev[B] = A;
    Next[V] = -1;
    At = B;
    --Left;
    if (2 * Left < Held) {
        Not_Right.Thin_Out([this](Long I) { return Next[I] >= 0; });
        Held = Left;
    }
    for (const Long N : {A, B}) {
        Not_Right.Switch(N, Turn(N) <= 0);
        Wish(N);
    }
}

void Clipper::Cut(Long V) {
    Ears.push_back({Prev[V], V, Next[V]});
    Take_Out(V);
}

void Clipper::Test(Long V) {
    const int Side = Turn(V);
    if (Side == 0 && Is_Spike(V))
        Take_Out(V);
    else if (Side > 0 && Is_Ear(V))
        Cut(V);
}

void Clipper::Wish_All() {
    Queue.clear();
    Head = 0;
    Long V = At;
    for (Long I = 0; I < Left; ++I, V = Next[V]) Wish(V);
}

// Nothing is an ear: the outline crosses itself.
void Clipper::Force() {
    for (int I = 0; I < Longest_Search && Turn(At) <= 0; ++I) At = Next[At];
    if (Turn(At) > 0)
        Cut(At);
    else
        Take_Out(At);
}

std::vector<Ear> Clipper::Run() {
    Wish_All();
    while (Left >= 3) {
        if (Head < Queue.size()) {
            const Turn_To_Test T = Queue[Head++];
            if (Next[T.V] >= 0 && Stamp[T.V] == T.Stamp) Test(T.V);
        } else if (!Touching) {
            Touching = true;
            Wish_All();
        } else {
            Force();
        }
    }
    return std::move(Ears);
}

}  // namespace

std::vector<Ear> Ear_Clip(std::span<const Pix> Outline) {
    if (Outline.size() < 3) return {};
    return Clipper(Outline).Run();
}
