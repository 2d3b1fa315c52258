// shapes/coast/coast_polys.h - closed coastlines made into convex pieces.
#pragma once

/// Cleans the outlines of Tab_WPoly, turns them clockwise, and divides them like polygons. Outlines
/// that cleaning leaves without a surface go.
void Coast_Polys();
