// geo/metres.h - degrees and pixels as metres on the ground, for sizes shown to the user.
#pragma once

#include <cmath>

#include "core/model.h"
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

/// Metres with three decimals, as sizes of pixels are shown: a half goes up.
inline Double Three_Decimals(Double Metres) {
    return std::floor((Metres + 0.0005) * 1000.0) / 1000.0;
}

/// Metres between two pixels one below the other and one beside the other, with three decimals.
/// Points that share a row or a column have none: the result is infinite or no number.
inline Double DV2Pix(const Calibration& Cal) {
    const Double Rows = static_cast<Double>(Cal.YPtSE) - Cal.YPtNW;
    return Three_Decimals(Deg_Lat_To_Metres(std::fabs(Cal.LatPtSE - Cal.LatPtNW) / Rows));
}
inline Double DH2Pix(const Calibration& Cal) {
    const Double Cols = static_cast<Double>(Cal.XPtSE) - Cal.XPtNW;
    return Three_Decimals(Deg_Lon_To_Metres((Cal.LatPtNW + Cal.LatPtSE) / 2.0,
                                            std::fabs(Cal.LonPtSE - Cal.LonPtNW) / Cols));
}
