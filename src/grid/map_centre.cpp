// grid/map_centre.cpp - from the points to the centre and back.
#include "grid/map_centre.h"

#include <cmath>

#include "geo/calibration.h"
#include "geo/metres.h"
#include "grid/map_limits.h"

namespace {

Double Cos_Deg(Double Lat) {
    return std::cos(Lat * Pi_15_Digits / 180.0);
}

// The points on the corners of the map, both placed.
void Set_Corners(const Map_Centre& At, Long Width, Long Height, Calibration& Cal) {
    const Double Half_Lat = (Height - 1.0) * At.Mpp_Lat / Metres_Per_Deg_Lat / 2.0;
    const Double Half_Lon =
        (Width - 1.0) / 2.0 * At.Mpp_Lon / (Metres_Per_Deg_Lon * Cos_Deg(At.Center_Lat));
    Cal.LatPtNW = Cal.LatMapNW = At.Center_Lat + Half_Lat;
    Cal.LatPtSE = Cal.LatMapSE = At.Center_Lat - Half_Lat;
    Cal.LonPtNW = Cal.LonMapNW = At.Center_Lon - Half_Lon;
    Cal.LonPtSE = Cal.LonMapSE = At.Center_Lon + Half_Lon;
    Cal.XPtNW = Cal.YPtNW = 0;
    Cal.XPtSE = Width - 1;
    Cal.YPtSE = Height - 1;
    Cal.CadNW_Done = Cal.CadSE_Done = 1;
}

bool Corners_On_Globe(const Calibration& Cal) {
    return Cal.LatPtNW < 90.0 && Cal.LatPtSE > -90.0 && Cal.LonPtNW >= -180.0 &&
           Cal.LonPtSE <= 180.0;
}

}  // namespace

Map_Centre Centre_Of_Points(const Calibration& Cal, Long Width, Long Height) {
    Map_Centre At{.Center_Lat = (Cal.LatPtNW + Cal.LatPtSE) / 2.0,
                  .Center_Lon = (Cal.LonPtNW + Cal.LonPtSE) / 2.0};
    if (Cal.LatPtNW == 0.0 && Cal.LonPtNW == 0.0 && Cal.LatPtSE == 0.0 && Cal.LonPtSE == 0.0)
        return At;
    At.Mpp_Lat = (Cal.LatPtNW - Cal.LatPtSE) * Metres_Per_Deg_Lat / (Height - 1.0);
    At.Mpp_Lon =
        (Cal.LonPtSE - Cal.LonPtNW) * Metres_Per_Deg_Lon * Cos_Deg(At.Center_Lat) / (Width - 1.0);
    return At;
}

bool Calibrate_By_Centre(const Map_Centre& At, Long Width, Long Height, Calibration& Cal) {
    if (!(std::fabs(At.Center_Lat) < 90.0)) return false;
    Calibration New;
    Set_Corners(At, Width, Height, New);
    if (!Points_In_Order(New) || !Corners_On_Globe(New)) return false;
    Compute_Grid_Limits(New);
    Cal = New;
    return true;
}
