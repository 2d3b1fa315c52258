// geo/metres.h - degrees as metres on the ground, for sizes shown to the user.
#pragma once

#include <cmath>

#include "core/numbers.h"

/// Metres in a degree: of a meridian 40019.31 km long, and of an equator of 40075 km.
inline constexpr Double Metres_Per_Deg_Lat = 111164.75;
inline constexpr Double Metres_Per_Deg_Lon = 111319.444;
inline constexpr Double Pi_15_Digits = 3.14159265358979;

inline Double Deg_Lat_To_Metres(Double Deg) {
    return Metres_Per_Deg_Lat * Deg;
}

/// Deg degrees of longitude along the parallel Lat.
inline Double Deg_Lon_To_Metres(Double Lat, Double Deg) {
    return Metres_Per_Deg_Lon * Deg * std::cos(Lat * Pi_15_Digits / 180.0);
}
