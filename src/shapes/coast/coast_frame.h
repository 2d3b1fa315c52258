// shapes/coast/coast_frame.h - the way from the end of a coastline back to its start.
//
// The frame is a rectangle one Cell outside the box of the line. The way leaves the line's end
// along the edge of a Cell, follows the frame clockwise and comes in to the line's start along
// the edge of a Cell, too, so that it never runs through a Cell that the line touches.
#pragma once

#include <array>
#include <optional>
#include <span>
#include <vector>

#include "shapes/coast/coast_loc.h"

/// The corners of the frame, in map pixels: north-west, north-east, south-east, south-west.
using Coast_Frame = std::array<Pix, 4>;
Coast_Frame Coast_Frame_Of(std::span<const CoastLoc> Line);

/// The points between the last point of Line and its first one, both left out. The line begins
/// and ends on edges of Cells. Nothing when no way out is free, or, with message 132, when no way
/// in is free after a full turn.
std::optional<std::vector<Pix>> Coast_Way_Back(const Coast_Frame& Frame,
                                               std::span<const CoastLoc> Line);
