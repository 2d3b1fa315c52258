// tex/picture_square.h - a picture of any size shown in a square.
#pragma once

#include "tex/picture.h"

/// Where a picture stands in the square: in its middle and in its own size; a larger one is made
/// to fit, its longer side filling the square's.
struct Square_Place {
    Long X = 0, Y = 0, Width = 0, Height = 0;  // pixels of the square
};
Square_Place Place_In_Square(Long Width, Long Height, Long Side);

/// P, of 24 bits, as a picture of Side by Side on a plain ground: itself when it has that size.
/// A picture made smaller loses pixels; none are mixed.
Picture Picture_In_Square(Picture P, Long Side);
