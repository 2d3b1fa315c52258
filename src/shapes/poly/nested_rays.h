// shapes/poly/nested_rays.h - rays against many shifted outlines, each prepared when it is first
// asked.
#pragma once

#include <cstdint>
#include <memory>

#include "geometry/edge_sweep.h"
#include "geometry/patience.h"
#include "geometry/ring_rays.h"
#include "geometry/sorted_points.h"
#include "shapes/poly/nesting_lists.h"

/// How many rays are cast for Nb outlines before what lies in what is found out for all at once.
inline std::int64_t Ray_Budget(std::size_t Nb) {
    return Search_Patience * static_cast<std::int64_t>(Nb);
}

/// Answers exactly as Cast_Ray does for each outline.
class Nested_Rays {
public:
    /// Lines must outlive this and have been shifted in this order.
    Nested_Rays(const Outlines& Lines, std::span<const Long> Order)
        : Lines_(Lines), Shared_(Lines.Point, Order), Prepared_(Lines.Nb()) {}

    /// The ray from a point of another outline.
    Ray_Hit Cast(Pix From, std::size_t I) {
        const auto Ring = Lines_.Ring(I);
        if (Ring.size() <= Short_Ring || Is_Shared(From.X)) return Cast_Ray(From, Ring);
        if (!Prepared_[I]) Prepared_[I] = std::make_unique<Ring_Rays>(Ring);
        return Prepared_[I]->Cast(From);
    }

    /// The points that share this X with another one; without any, an odd count is possible
    /// only for a point inside the ray box of an outline.
    std::span<const Shared_X::Entry> Sharing(Double X) const { return Shared_.At(X); }
    /// The innermost outline around each, found without rays; nothing when rays could tell
    /// otherwise. They can not where edges keep apart (Sweep_Edges) and no two points share an X.
    std::vector<Long> Around() const {
        if (!Shared_.Is_Empty()) return {};
        return Sweep_Edges({Lines_.Point, Lines_.First}).Around;
    }
    bool Is_Shared(Double X) const { return !Shared_.Is_Empty() && !Shared_.At(X).empty(); }

private:
    static constexpr std::size_t Short_Ring = 64;

    const Outlines& Lines_;
    Shared_X Shared_;
    std::vector<std::unique_ptr<Ring_Rays>> Prepared_;
};
