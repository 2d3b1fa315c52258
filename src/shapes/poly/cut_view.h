// shapes/poly/cut_view.h - whoever watches polygons being split and cut.
#pragma once

#include <span>

#include "geo/calibration.h"

/// Told of each outline, in map pixels, as it is made. Null while nobody watches, which costs a
/// look at it.
struct Cut_View {
    void (*Run_Taken_Off)(std::span<const Pix> Outline) = nullptr;  // by the convex split
    void (*Piece_Cut)(std::span<const Pix> Outline) = nullptr;      // along the grid
};

inline Cut_View The_Cut_View;
