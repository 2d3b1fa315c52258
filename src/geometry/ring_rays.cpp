// geometry/ring_rays.cpp - counting, plainly and by chains.
#include "geometry/ring_rays.h"

#include <cmath>
#include <limits>

#include "geometry/segments.h"

namespace {

// Whether the ray from a point meets the edge, and at which Y.
bool Meets_Ray(Pix From, Pix P1, Pix P2, Double& Y) {
    if (!In_Span(From.X, P1.X, P2.X) || P1.X == P2.X) return false;
    Y = P1.Y;
    if (P1.Y != P2.Y) {
        const Double a = (P2.Y - P1.Y) / (P2.X - P1.X);
        const Double b0 = P1.Y - P1.X * a;
        Y = From.X * a + b0;
    }
    return !(Y <= From.Y);
}

// The meeting point strays from the edge by a few roundings of products of the slope and X. Where
// that cannot be bounded the box has no limits.
Box_Pix Edge_Ray_Box(Pix P1, Pix P2) {
    constexpr Double Roundings = 16 * std::numeric_limits<Double>::epsilon();
    Box_Pix B;
    B.Add(P1);
    B.Add(P2);
    const Double Size_X = std::max(std::abs(P1.X), std::abs(P2.X));
    const Double Size_Y = std::max(std::abs(P1.Y), std::abs(P2.Y));
    const Double Slope = P1.X == P2.X ? 0.0 : std::abs((P2.Y - P1.Y) / (P2.X - P1.X));
    const Double Stray = Roundings * (Slope * Size_X + Size_Y);
    if (!(Stray < std::numeric_limits<Double>::infinity()))
        return {B.LX, -std::numeric_limits<Double>::infinity(), B.HX,
                std::numeric_limits<Double>::infinity()};
    B.LY -= Stray;
    B.HY += Stray;
    return B;
}

}  // namespace

Ray_Hit Cast_Ray(Pix From, std::span<const Pix> Ring) {
    Ray_Hit Hit;
    Pix P1 = Ring.back();
    for (const Pix P2 : Ring) {
        Double Y = 0.0;
        if (Meets_Ray(From, P1, P2, Y)) {
            Hit.Odd = !Hit.Odd;
            Hit.Nearest = std::min(Hit.Nearest, Y);
        }
        P1 = P2;
    }
    return Hit;
}

Box_Pix Ray_Box(std::span<const Pix> Ring) {
    Box_Pix B;
    Pix P1 = Ring.back();
    for (const Pix P2 : Ring) {
        B.Add(Edge_Ray_Box(P1, P2));
        P1 = P2;
    }
    return B;
}

Ring_Rays::Ring_Rays(std::span<const Pix> Ring) : Ring_(Ring) {
    Level_.emplace_back((Ring.size() + Leaf - 1) / Leaf);
    for (std::size_t E = 0; E < Ring.size(); ++E)
        Level_[0][E / Leaf].Add(Edge_Ray_Box(Ring[E], To(E)));
    while (Level_.back().size() > 1) {
        std::vector<Box_Pix> Up((Level_.back().size() + 1) / 2);
        for (std::size_t K = 0; K < Level_.back().size(); ++K) Up[K / 2].Add(Level_.back()[K]);
        Level_.push_back(std::move(Up));
    }
}

Ray_Hit Ring_Rays::Cast(Pix From) const {
    Ray_Hit Hit;
    Hit.Odd = Is_Odd(Level_.size() - 1, 0, From);
    if (Hit.Odd) Find_Nearest(Level_.size() - 1, 0, From, Hit.Nearest);
    return Hit;
}

bool Ring_Rays::Is_Odd(std::size_t Lv, std::size_t K, Pix From) const {
    const Box_Pix& B = Level_[Lv][K];
    if (Misses(B, From)) return false;
    const std::size_t First = First_Edge(Lv, K), End = End_Edge(Lv, K);
    if (B.LY > From.Y) return (Ring_[First].X < From.X) != (To(End - 1).X < From.X);
    bool Odd = false;
    if (Lv == 0) {
        for (std::size_t E = First; E < End; ++E) {
            Double Y = 0.0;
            if (Meets_Ray(From, Ring_[E], To(E), Y)) Odd = !Odd;
        }
        return Odd;
    }
    for (std::size_t C = 2 * K; C < std::min(2 * K + 2, Level_[Lv - 1].size()); ++C)
        Odd = Odd != Is_Odd(Lv - 1, C, From);
    return Odd;
}

void Ring_Rays::Find_Nearest(std::size_t Lv, std::size_t K, Pix From, Double& Nearest) const {
    const Box_Pix& B = Level_[Lv][K];
    if (Misses(B, From) || B.LY >= Nearest) return;
    if (Lv == 0) {
        for (std::size_t E = First_Edge(Lv, K); E < End_Edge(Lv, K); ++E) {
            Double Y = 0.0;
            if (Meets_Ray(From, Ring_[E], To(E), Y)) Nearest = std::min(Nearest, Y);
        }
        return;
    }
    const std::size_t One = 2 * K, Two = One + 1;
    if (Two >= Level_[Lv - 1].size()) {
        Find_Nearest(Lv - 1, One, From, Nearest);
        return;
    }
    const bool One_First = Level_[Lv - 1][One].LY <= Level_[Lv - 1][Two].LY;
    Find_Nearest(Lv - 1, One_First ? One : Two, From, Nearest);
    Find_Nearest(Lv - 1, One_First ? Two : One, From, Nearest);
}
