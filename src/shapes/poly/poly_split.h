// shapes/poly/poly_split.h - polygons divided into convex pieces of moderate size.
//
// The grid cut needs polygons that a line meets at most twice, and the simulator takes a limited
// number of points.
#pragma once

#include "shapes/poly/work_lists.h"

/// Replaces the clockwise polygons of Tab_WPoly by convex pieces of fewer than Limit points,
/// which keep their polygon's place in the list and its values. Polygons of fewer than 4 points
/// stay as they are. Limit is 24 or more. A polygon whose division would not come to an end, or
/// would give a piece that runs the wrong way, is divided into triangles instead.
void Poly_Split_Max(Long Limit);
