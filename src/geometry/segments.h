// geometry/segments.h - plain geometry of points, lines and segments.
//
// Coordinates are map pixels, Y south. All tests are exact comparisons of Doubles in the order
// of operations given: near misses stay misses. The bodies stand here because they are the
// innermost steps of every cutter.
#pragma once

#include <algorithm>
#include <cmath>

#include "core/numbers.h"
#include "geo/calibration.h"

/// Slope a and intercept b of y = a * x + b. Both 0 for a vertical line; a = 0, b = y1 for a
/// horizontal one.
struct Slope {
    Double a = 0.0;
    Double b = 0.0;
};

inline Slope Line_Coef(Pix P1, Pix P2) {
    if (P1.X == P2.X) return {};
    if (P1.Y == P2.Y) return {.a = 0.0, .b = P1.Y};
    const Double a = (P2.Y - P1.Y) / (P2.X - P1.X);
    return {.a = a, .b = P1.Y - a * P1.X};
}

/// Twice the signed area of the triangle P1 P2 P3; above 0 when it runs clockwise on the map.
inline Double Cross_Z(Pix P1, Pix P2, Pix P3) {
    return (P2.X - P1.X) * (P3.Y - P1.Y) - (P3.X - P1.X) * (P2.Y - P1.Y);
}

/// Which way the path P1, P2, P3 turns on the map: 2 right, 1 left, 0 not at all. At a slant it
/// turns nowhere only when P3 is, to the last bit, the foot of its perpendicular on P1 P2.
inline Int Sens_3Pts(Pix P1, Pix P2, Pix P3) {
    const auto One_When = [](bool Left) { return static_cast<Int>(Left ? 1 : 2); };
    if (P1.X == P2.X) {
        if (P3.X == P1.X) return 0;
        return One_When(P2.Y >= P1.Y ? P3.X > P1.X : P3.X <= P1.X);
    }
    if (P1.Y == P2.Y) {
        if (P3.Y == P1.Y) return 0;
        return One_When(P2.X >= P1.X ? P3.Y < P1.Y : P3.Y > P1.Y);
    }
    if (P2.X == P3.X) return One_When(P3.Y >= P2.Y ? P1.X > P3.X : P1.X <= P3.X);
    if (P2.Y == P3.Y) return One_When(P3.X >= P2.X ? P1.Y < P3.Y : P1.Y > P3.Y);
    const Slope L = Line_Coef(P1, P2);
    const Double m = -1.0 / L.a;
    const Double c = P3.Y - m * P3.X;
    const Double xf = (c - L.b) / (L.a - m);
    const Double yf = L.a * xf + L.b;
    if (xf == P3.X && yf == P3.Y) return 0;
    return One_When(P2.X > P1.X ? P3.Y < yf : P3.Y > yf);
}

/// Where two infinite lines meet. Found is 0 when they are parallel. Lines given by a common
/// point meet there, parallel or not.
struct Line_Meet {
    Int Found = 0;
    Pix At;
};

inline Line_Meet Line_Cross(Pix P1, Pix P2, Pix P3, Pix P4) {
    if (P1 == P3 || P1 == P4) return {.Found = 1, .At = P1};
    if (P2 == P3 || P2 == P4) return {.Found = 1, .At = P2};
    const bool Upright_1 = P1.X == P2.X, Upright_2 = P3.X == P4.X;
    const bool Level_1 = P1.Y == P2.Y, Level_2 = P3.Y == P4.Y;
    if ((Upright_1 && Upright_2) || (Level_1 && Level_2)) return {};
    const Slope L1 = Line_Coef(P1, P2), L2 = Line_Coef(P3, P4);
    if (Upright_1) return {1, {P1.X, Level_2 ? P3.Y : L2.a * P1.X + L2.b}};
    if (Upright_2) return {1, {P3.X, Level_1 ? P1.Y : L1.a * P3.X + L1.b}};
    if (Level_1) return {1, {(P1.Y - L2.b) / L2.a, P1.Y}};
    if (Level_2) return {1, {(P3.Y - L1.b) / L1.a, P3.Y}};
    if (std::abs(L1.a - L2.a) < 1e-10) return {};
    const Double xi = (L2.b - L1.b) / (L1.a - L2.a);
    return {1, {xi, L1.a * xi + L1.b}};
}

/// Whether V lies in the span from A to B, ends included.
inline bool In_Span(Double V, Double A, Double B) {
    return std::min(A, B) <= V && V <= std::max(A, B);
}

/// How two segments meet, from the least to the most.
enum class Meet { Parallel, Miss, Cross, End };

/// The same for two segments: with Meet::End they touch at an X that is an end of both. At is the
/// meeting point of the lines, unless they are parallel.
struct Seg_Meet {
    Meet Code = Meet::Parallel;
    Pix At;
};

inline Seg_Meet Seg_Cross(Pix P1, Pix P2, Pix P3, Pix P4) {
    const Line_Meet M = Line_Cross(P1, P2, P3, P4);
    if (M.Found == 0) return {};
    const auto [xi, yi] = M.At;
    if (!In_Span(xi, P1.X, P2.X) || !In_Span(xi, P3.X, P4.X) || !In_Span(yi, P1.Y, P2.Y) ||
        !In_Span(yi, P3.Y, P4.Y))
        return {Meet::Miss, M.At};
    const bool Shared_End = (xi == P1.X || xi == P2.X) && (xi == P3.X || xi == P4.X);
    return {Shared_End ? Meet::End : Meet::Cross, M.At};
}
