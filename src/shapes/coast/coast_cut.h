// shapes/coast/coast_cut.h - coastlines with a point at every edge of a Cell.
#pragma once

#include <vector>

#include "geo/calibration.h"
#include "grid/grid_lines.h"

/// Adds a point to Line wherever a segment crosses a line of the grid, first the rows, then the
/// columns. A grid line within the tolerance of an end of a segment adds none.
void Coast_Crossings(const Grid_Lines& Grid, std::vector<Pix>& Line);

/// Gives the coastlines of Tab_WPoly a point at every crossing and shortens them to begin and end
/// on an edge (Coast_Trim). A line that cannot be brought to an edge gives message 132, and
/// Tab_WPoly is empty then.
void Coast_Cut_Cells();
