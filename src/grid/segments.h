// grid/segments.h - plain geometry of points, lines and segments.
//
// Coordinates are map pixels, Y south. All tests are exact comparisons of Doubles in the order
// of operations given: near misses stay misses.
#pragma once

#include "core/numbers.h"
#include "geo/calibration.h"

/// Slope a and intercept b of y = a * x + b. Both 0 for a vertical line; a = 0, b = y1 for a
/// horizontal one.
struct Slope {
    Double a = 0.0;
    Double b = 0.0;
};
Slope Line_Coef(Pix P1, Pix P2);

/// Twice the signed area of the triangle P1 P2 P3; above 0 when it runs clockwise on the map.
Double Cross_Z(Pix P1, Pix P2, Pix P3);

/// Which way the path P1, P2, P3 turns on the map: 2 right, 1 left, 0 not at all.
Int Sens_3Pts(Pix P1, Pix P2, Pix P3);

/// Where two infinite lines meet. Found is 0 when they are parallel.
struct Line_Meet {
    Int Found = 0;
    Pix At;
};
Line_Meet Line_Cross(Pix P1, Pix P2, Pix P3, Pix P4);

/// The same for two segments: 0 parallel, 1 they miss, 2 they cross, 3 they touch at an X that
/// is an end of both. At is the meeting point of the lines, unless Code is 0.
struct Seg_Meet {
    Int Code = 0;
    Pix At;
};
Seg_Meet Seg_Cross(Pix P1, Pix P2, Pix P3, Pix P4);
