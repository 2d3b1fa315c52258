// geometry/sorted_points.h - points from west to east, and the shift that keeps rays off them.
#pragma once

#include <span>
#include <utility>
#include <vector>

#include "geo/calibration.h"

/// The places of the points, from 0, by X and then Y, in the order of the exchange sort.
std::vector<Long> Sorted_Points(std::span<const Pix> Points);

/// Moves points apart that share a coordinate, so that rays toward growing Y meet no upright
/// edge and pass through no vertex: in each run of neighbours of the order with equal Y, the
/// k-th behind the first moves south by Step * k, and likewise east in each run of equal X. Both
/// are runs of the unshifted points.
void Shift_Equal(std::span<Pix> Points, std::span<const Long> Order, Double Step);

/// The places of points that still share an X with another one, grouped by it. Empty in nearly
/// every project.
class Shared_X {
public:
    Shared_X(std::span<const Pix> Points, std::span<const Long> Order);

    bool Is_Empty() const { return Entry_.empty(); }
    /// The points that have this X, with their X.
    using Entry = std::pair<Double, Long>;
    std::span<const Entry> At(Double X) const;

private:
    std::vector<Entry> Entry_;
};
