// geometry/box.h - a closed rectangle of map pixels.
#pragma once

#include <algorithm>
#include <limits>

#include "core/numbers.h"
#include "geo/calibration.h"

struct Box_Pix {
    Double LX = std::numeric_limits<Double>::infinity();  // west; a new box holds nothing
    Double LY = std::numeric_limits<Double>::infinity();  // north
    Double HX = -std::numeric_limits<Double>::infinity();
    Double HY = -std::numeric_limits<Double>::infinity();

    void Add(Pix P) {
        LX = std::min(LX, P.X);
        LY = std::min(LY, P.Y);
        HX = std::max(HX, P.X);
        HY = std::max(HY, P.Y);
    }
    void Add(const Box_Pix& B) {
        LX = std::min(LX, B.LX);
        LY = std::min(LY, B.LY);
        HX = std::max(HX, B.HX);
        HY = std::max(HY, B.HY);
    }
    /// Whether the two have a point in common, edges included.
    bool Meets(const Box_Pix& B) const {
        return LX <= B.HX && B.LX <= HX && LY <= B.HY && B.LY <= HY;
    }
};
