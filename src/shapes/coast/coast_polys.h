// shapes/coast/coast_polys.h - closed coastlines made into pieces that lie in one Cell each.
#pragma once

/// Cleans the outlines of Tab_WPoly, turns them clockwise, and divides and cuts them like
/// polygons. Outlines that cleaning leaves without a surface go.
void Coast_Polys();
