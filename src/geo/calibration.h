// geo/calibration.h - the straight line between map pixels and degrees.
//
// The map is tied to the globe by two points (model.h); latitude follows the row and longitude
// the column, each with its own scale, without a projection.
#pragma once

#include "core/model.h"
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

/// Both are the line through the two points of Cal, evaluated from left to right as it stands
/// here. Points that share a row, a column, a latitude or a longitude give infinities or no
/// numbers.
inline Geo Pixel_To_LatLon(Pix P, const Calibration& Cal = The_Calibration) {
    const Double Rows = static_cast<Double>(Cal.YPtSE) - Cal.YPtNW;
    const Double Cols = static_cast<Double>(Cal.XPtSE) - Cal.XPtNW;
    return {Cal.LatPtNW + (Cal.LatPtSE - Cal.LatPtNW) * (P.Y - Cal.YPtNW) / Rows,
            Cal.LonPtNW + (Cal.LonPtSE - Cal.LonPtNW) * (P.X - Cal.XPtNW) / Cols};
}
inline Pix LatLon_To_Pixel(Geo G, const Calibration& Cal = The_Calibration) {
    const Double Rows = static_cast<Double>(Cal.YPtSE) - Cal.YPtNW;
    const Double Cols = static_cast<Double>(Cal.XPtSE) - Cal.XPtNW;
    return {Cal.XPtNW + Cols * (G.Lon - Cal.LonPtNW) / (Cal.LonPtSE - Cal.LonPtNW),
            Cal.YPtNW + Rows * (G.Lat - Cal.LatPtNW) / (Cal.LatPtSE - Cal.LatPtNW)};
}

/// Whether the two points of Cal lie in north-west to south-east order, in pixels and in degrees.
bool Points_In_Order(const Calibration& Cal = The_Calibration);

/// The number of the message that refuses the points of Cal: 6 when one has not been placed, 7
/// when they are not in order; 0 when they are good.
Int Points_Refused(const Calibration& Cal);

/// Whether Cal can serve the generators: its points lie in north-west to south-east order in
/// pixels and in degrees, and its work grid has an extent in both, lies on the globe (so that
/// it has no more lines than the globe has rows or columns of cells), and has lines that
/// Doubles of their size can tell apart.
bool Calibration_Can_Serve(const Calibration& Cal = The_Calibration);
