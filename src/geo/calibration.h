// geo/calibration.h - the straight line between map pixels and degrees.
//
// The map is tied to the globe by two points (model.h); latitude follows the row and longitude
// the column, each with its own scale, without a projection.
#pragma once

#include "core/numbers.h"

/// A position on the map image, in pixels: X east, Y south, fractions allowed, off the map too.
struct Pix {
    Double X = 0.0;
    Double Y = 0.0;

    bool operator==(const Pix&) const = default;
};

/// A position on the globe, in degrees: north and east positive.
struct Geo {
    Double Lat = 0.0;
    Double Lon = 0.0;

    bool operator==(const Geo&) const = default;
};

Geo Pixel_To_LatLon(Pix P);
Pix LatLon_To_Pixel(Geo G);

/// Whether the calibration can serve: two points in north-west to south-east order in pixels
/// and in degrees, a work grid with an extent, and no more grid lines in it than the globe
/// has rows or columns of Cells.
bool Calibration_Can_Serve();
