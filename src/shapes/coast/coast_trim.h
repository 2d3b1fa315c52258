// shapes/coast/coast_trim.h - coastlines shortened until they begin and end on the edge of a Cell.
#pragma once

#include <span>

#include "geo/calibration.h"

/// What is left of a coastline. An empty Line is dropped; Failed when the line passes through
/// several Cells and still comes to no edge.
struct Coast_Rest {
    std::span<const Pix> Line;
    bool Failed = false;
};

/// Shortens a line that has a point wherever it crosses the edge of a Cell (Coast_Crossings). A
/// point belongs to the Cell under the middle of the segment that leads inwards from it.
Coast_Rest Coast_Trim(std::span<const Pix> Line);
