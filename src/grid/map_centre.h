// grid/map_centre.h - a calibration given by the centre of the map and the size of its pixels.
#pragma once

#include "core/model.h"

struct Map_Centre {
    Double Center_Lat = 0.0;  // degrees
    Double Center_Lon = 0.0;
    Double Mpp_Lat = 4.75;  // metres between two pixels one below the other,
    Double Mpp_Lon = 4.75;  // and one beside the other at the latitude of the centre
};

/// The centre between the points of Cal, and the metres a pixel has when they are the corners of
/// a map of Width by Height pixels, both 2 or more. While all four degrees are 0 the metres are
/// those above.
Map_Centre Centre_Of_Points(const Calibration& Cal, Long Width, Long Height);

/// Makes the corners of the map the points of Cal, both placed, and fills all that follows from
/// them. False, with Cal as it was, when the centre lies at a pole or beyond, an edge at or
/// beyond a pole or beyond 180 degrees, or the metres give the map no extent.
bool Calibrate_By_Centre(const Map_Centre& At, Long Width, Long Height, Calibration& Cal);
