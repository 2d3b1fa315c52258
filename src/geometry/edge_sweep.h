// geometry/edge_sweep.h - proof that the edges of outlines keep apart, in n log n whatever they
// look like.
//
// Tests of pairs of edges look at those whose boxes meet. In a star, or in rings one in the other,
// that is nearly every pair. A line that moves from west to east meets edges in an order that
// changes only where edges begin and end, as long as none meet; so if each keeps well off its
// neighbours in that order, it keeps off all others, and no pair need be tested.
//
// "Well off" is measured upright and leaves room for all rounding: Line_Cross puts its meeting
// point up to 64 roundings of (slope 1 + slope 2) * X + Y away from either line (Edge_Boxes). The
// order itself is exact. Edges that share a point of their outline lie next to each other at will.
// Between any two other edges there is then a chain of pairs, and pairs up to one edge of the
// outline beside those that are neighbours in the order are measured as well: so the sum over the
// chain has room for the slopes of both ends.
#pragma once

#include <span>
#include <vector>

#include "core/numbers.h"
#include "geo/calibration.h"

/// Outlines one after the other: number k has points First[k] to First[k + 1] - 1. Open ones have
/// no edge from their last point to their first.
struct Edge_Outlines {
    std::span<const Pix> Point;
    std::span<const std::size_t> First;
    bool Closed = true;
};

struct Edge_Order {
    /// No two edges meet or nearly do, but for neighbours in an outline. False in doubt.
    bool Apart = false;
    /// When Apart and closed: the innermost other outline of 3 points or more around each; -1
    /// where there is none.
    std::vector<Long> Around;
};
Edge_Order Sweep_Edges(const Edge_Outlines& Lines);
