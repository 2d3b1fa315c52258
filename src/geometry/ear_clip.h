// geometry/ear_clip.h - any outline as triangles: the sound way out where the convex split fails.
//
// Coordinates are map pixels, Y south. An outline is held once, its closing edge implied.
#pragma once

#include <array>
#include <span>
#include <vector>

#include "core/numbers.h"
#include "geo/calibration.h"

/// Three corners of a triangle, as positions in the outline counted from 0, clockwise on the map.
using Ear = std::array<Long, 3>;

/// Divides an outline into triangles whose corners are its points. A simple outline of either
/// turn is covered exactly, points in line, repeated points and spikes included. An outline that
/// touches or crosses itself gets triangles as well, but they may overlap or leave gaps.
/// Triangles without area are left out, so a flat outline gives none. The order is fixed by the
/// points alone. Takes n log n time in the usual case.
std::vector<Ear> Ear_Clip(std::span<const Pix> Outline);
