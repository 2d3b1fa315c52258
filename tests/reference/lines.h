// reference/lines.h - the plain rules of lines: scans over a list with its first point repeated
// at the end, and every grid line a pass over all lines.
#pragma once

#include "reference/lists.h"
#include "shapes/line/line_collect.h"
#include "shapes/line/line_cut.h"

namespace reference {

/// Fills the work lists with the cleaned lines of a rule.
void Line_Collect(const Line_Rule& Rule);

/// A grid to cut along: its steps in degrees, how many grid lines there are to a step, and what a
/// step in pixels is divided by for the tolerance.
struct Line_Grid {
    Double StepLat, StepLon;
    Double Parts, TolDiv;
};

/// Replaces the lines of the work lists by their pieces. Of Rule the grid is not looked at.
void Line_Cut(const Line_Grid& Grid, const Line_Cut_Rule& Rule);

}  // namespace reference
