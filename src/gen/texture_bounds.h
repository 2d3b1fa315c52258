// gen/texture_bounds.h - when a polygon linked to a texture lies outside it.
#pragma once

#include <algorithm>
#include <limits>

#include "core/model.h"

/// What the textures of one number have in common: a point lies outside one of them exactly when
/// it lies outside this. Edges are inside. Deleted textures count too, since deleting one has
/// cleared the links to it.
class Texture_Bounds {
public:
    void Take(const Ima& M) {
        X1_ = std::max(X1_, M.X1);
        Y1_ = std::max(Y1_, M.Y1);
        X2_ = std::min(X2_, M.X2);
        Y2_ = std::min(Y2_, M.Y2);
    }

    /// Whether a point of O, moved by (DX, DY) map pixels, lies outside.
    bool Misses(const Obj& O, Double DX = 0.0, Double DY = 0.0) const {
        if (O.Nb_Pts == 0) return false;
        for (Long P = O.First_Pt;; P = Tab_Pt[P].Next) {
            const Double X = Tab_Pt[P].X + DX, Y = Tab_Pt[P].Y + DY;
            if (X < X1_ || X > X2_ || Y < Y1_ || Y > Y2_) return true;
            if (P == O.Last_Pt) return false;
        }
    }

private:
    static constexpr Double Endless = std::numeric_limits<Double>::infinity();
    Double X1_ = -Endless, Y1_ = -Endless, X2_ = Endless, Y2_ = Endless;
};
