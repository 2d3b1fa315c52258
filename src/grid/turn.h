// grid/turn.h - Sens_3Pts without its divisions, where the answer is beyond doubt.
#pragma once

#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

#include "grid/segments.h"

/// Sens_3Pts, to the last bit. It compares P3 with the foot of its perpendicular; the two Y
/// differ by z * dx / (dx * dx + dy * dy), z being Cross_Z and dx, dy the way from P1 to P2, and
/// the foot strays from its true place by fewer than 64 roundings of the largest coordinate times
/// (dx + dy) / dx. Where the difference is greater than twice that, the sign of z decides. Size
/// bounds all coordinates and is 1 at least.
inline Int Turn(Pix P1, Pix P2, Pix P3, Double Size) {
    constexpr Double Stray = 128 * std::numeric_limits<Double>::epsilon();
    const Double dx = P2.X - P1.X, dy = P2.Y - P1.Y;
    const Double Z = dx * (P3.Y - P1.Y) - dy * (P3.X - P1.X);
    const Double dx2 = dx * dx, Way = std::abs(dx) + std::abs(dy);
    if (std::abs(Z) * dx2 > Stray * Size * Way * (dx2 + dy * dy)) return Z > 0.0 ? Int{2} : Int{1};
    return Sens_3Pts(P1, P2, P3);
}

/// The greatest coordinate of some points without its sign, but 1 at least.
inline Double Size_Of(std::span<const Pix> Points) {
    Double Size = 1.0;
    for (const Pix P : Points) Size = std::max({Size, std::abs(P.X), std::abs(P.Y)});
    return Size;
}
