// bench/shapes.h - awkward drawings made from a seed, for tests that compare and check; those
// of drawings.h are stretched to a frame.
//
// Coordinates are map pixels. The same seed gives the same drawing.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <vector>

#include "core/model.h"
#include "drawings.h"
#include "geo/calibration.h"

namespace shapes {

using drawings::Frame;
using drawings::Random;
using Outline = std::vector<Pix>;

/// Simple outlines that fill a frame, of either turn.
Outline Fractal_Ring(Random& R, const Frame& F, Long Points);
Outline Star(Random& R, const Frame& F, Long Spikes);
Outline Comb(Random& R, const Frame& F, Long Teeth);
Outline Spiral(const Frame& F, Long Points);
Outline Rectangle(const Frame& F);
/// Long and thin, from corner to corner of the frame.
Outline Needle(Random& R, const Frame& F);
/// Random points joined by a path without crossings. With a Raster above 0 they are its
/// multiples, so that many share an X or a Y, and the path may touch itself.
Outline Tangle(Random& R, const Frame& F, Long Points, Double Raster = 0.0);

/// Like one of two outlines that the walk of the convex split cannot divide.
Outline Twisted(Random& R, const Frame& F);

/// The same outline with some points given twice or thrice, and with points set on its edges.
Outline With_Repeats(Random& R, const Outline& O);
Outline With_Points_In_Line(Random& R, const Outline& O);
/// Some points moved onto lines and corners of the work grid, or as near as a few tolerances of
/// the cut. The outline may cross itself afterwards.
Outline Snapped_To_Grid(Random& R, const Outline& O, Int Mode);

/// Whether no two edges meet, neighbours in their common point excepted. Decided exactly, by
/// looking at every pair.
bool Is_Simple(std::span<const Pix> O);
/// Twice the signed area; above 0 when clockwise on the map.
Double Area_2(std::span<const Pix> O);

/// Ties an empty map to the globe: about Cells by Cells cells of the Area grid (Mode 2) or the
/// Cell grid. Round maps have their grid lines at multiples of 128 pixels, exactly.
void Make_Map(Random& R, Long Cells, Int Mode, bool Round = false);
/// The part of the map that drawings fill.
Frame Map_Frame();

/// A new polygon object of the Mode. Returns its row in Tab_Obj.
Long Add_Polygon(const Outline& O, Int Mode = 0, const std::string& Imbrication = "");

enum class Kind {
    Rings,     // one or more fractal rings side by side
    Stars,     // stars and combs
    Spirals,   // spirals
    Tangles,   // untangled random points
    On_Grid,   // rectangles and others with points on lines and corners of the grid
    Needles,   // needles, two-point outlines
    Nested,    // lakes with islands with lakes
    Crossing,  // outlines that may cross themselves or one another
    Ties,      // few different X and Y
    Texts,     // nesting texts, some equal, among plain polygons
    Twisted,   // outlines that the convex split fails at
    Mixed      // everything at once
};
inline constexpr int Nb_Kind = 12;

/// A whole project from nothing: reset, map, polygons. Small enough for the plain rules.
void Make_Project(std::uint64_t Seed, Kind K, Int Mode = 0);

}  // namespace shapes
