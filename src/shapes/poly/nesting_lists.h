// shapes/poly/nesting_lists.h - what Auto_Order finds out and Auto_Tree needs.
#pragma once

#include <span>
#include <vector>

#include "shapes/poly/work_lists.h"

/// A polygon without an Imbrication text, by its row in Tab_WPoly. Polygons count from 0.
struct PolyRef {
    Long WPoly_Ix = 0;

    const WPoly& Of() const { return Tab_WPoly[WPoly_Ix]; }
    std::span<const WPt> Points() const {
        return std::span<const WPt>(Tab_WPt.Rows())
            .subspan(static_cast<std::size_t>(Of().First - 1), static_cast<std::size_t>(Of().Nb));
    }
};

/// A polygon that nothing contains, and the polygons inside it: places in Inner.
struct Outer {
    Long Poly = 0;
    std::size_t First_Inner = 0, End_Inner = 0;
};

struct Nesting_Lists {
    std::vector<PolyRef> Poly;
    std::vector<::Outer> Outer;
    std::vector<Long> Inner;
};

inline Nesting_Lists The_Nesting;

/// The points of some polygons one after the other, and where each begins.
struct Outlines {
    std::vector<Pix> Point;
    std::vector<std::size_t> First;  // one more than there are polygons

    void Add(const PolyRef& R) {
        if (First.empty()) First.push_back(0);
        for (const WPt& P : R.Points()) Point.push_back({P.X, P.Y});
        First.push_back(Point.size());
    }
    std::size_t Nb() const { return First.empty() ? 0 : First.size() - 1; }
    std::span<const Pix> Ring(std::size_t I) const {
        return std::span(Point).subspan(First[I], First[I + 1] - First[I]);
    }
    /// The polygon that each point belongs to.
    std::vector<Long> Owners() const {
        std::vector<Long> Owner;
        Owner.reserve(Point.size());
        for (std::size_t I = 0; I < Nb(); ++I) Owner.resize(First[I + 1], static_cast<Long>(I));
        return Owner;
    }
};
