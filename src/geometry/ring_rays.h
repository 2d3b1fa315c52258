// geometry/ring_rays.h - rays toward growing Y against outlines: what lies inside what.
#pragma once

#include <span>
#include <vector>

#include "geometry/box.h"

/// What a ray from a point straight south meets: the parity of the number of edges met, and the
/// Y of the nearest meeting below Ray_Limit, else Ray_Limit. An edge counts when its closed span
/// of X holds the point's and it meets the ray strictly south of the point; an upright edge
/// never does.
inline constexpr Double Ray_Limit = 1e10;
struct Ray_Hit {
    bool Odd = false;
    Double Nearest = Ray_Limit;
};

/// The plain count, edge by edge. Ring is an outline held once.
Ray_Hit Cast_Ray(Pix From, std::span<const Pix> Ring);

/// The box of an outline, widened so that no meeting point can lie outside it by rounding.
Box_Pix Ray_Box(std::span<const Pix> Ring);

/// The same count for many rays against one long outline: most edges are settled by the boxes
/// of the chains that they belong to. A chain that lies wholly south of the point is met an odd
/// number of times exactly when its ends lie on different sides of the ray, as long as none of
/// its points has the X of the ray.
class Ring_Rays {
public:
    /// Ring must outlive this.
    explicit Ring_Rays(std::span<const Pix> Ring);

    /// As Cast_Ray. No point of the ring may have the X of From.
    Ray_Hit Cast(Pix From) const;

private:
    static constexpr std::size_t Leaf = 8;

    bool Is_Odd(std::size_t Lv, std::size_t K, Pix From) const;
    void Find_Nearest(std::size_t Lv, std::size_t K, Pix From, Double& Nearest) const;
    bool Misses(const Box_Pix& B, Pix From) const {
        return From.X < B.LX || B.HX < From.X || B.HY <= From.Y;
    }
    std::size_t First_Edge(std::size_t Lv, std::size_t K) const { return (K << Lv) * Leaf; }
    std::size_t End_Edge(std::size_t Lv, std::size_t K) const {
        return std::min(Ring_.size(), First_Edge(Lv, K + 1));
    }
    Pix To(std::size_t E) const { return Ring_[E + 1 == Ring_.size() ? 0 : E + 1]; }

    std::span<const Pix> Ring_;
    std::vector<std::vector<Box_Pix>> Level_;
};
