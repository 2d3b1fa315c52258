// geo/calibration.cpp - which calibrations are fit for use.
#include "geo/calibration.h"

#include <algorithm>
#include <cmath>

namespace {

// A walk over the grid lines adds the pixels of one cell again and again. From First to Last lie
// at most 24576 cells; beyond this ratio a step would vanish in the rounding, and the walk would
// not end. Grids that belong to a map begin beside its pixel 0 and have a ratio near 1.
constexpr Double Max_Offset_Per_Extent = 1e9;

bool Lines_Stand_Apart(Double First, Double Last) {
    const Double Extent = Last - First;
    const Double Offset = std::max(std::fabs(First), std::fabs(Last));
    return Extent > 0.0 && std::isfinite(Extent) && Offset < Extent * Max_Offset_Per_Extent;
}

bool Grid_On_Globe(const Calibration& Cal) {
    return -90.0 <= Cal.LatGridSE && Cal.LatGridSE < Cal.LatGridNW && Cal.LatGridNW <= 90.0 &&
           -180.0 <= Cal.LonGridNW && Cal.LonGridNW < Cal.LonGridSE && Cal.LonGridSE <= 180.0;
}

}  // namespace

bool Points_In_Order(const Calibration& Cal) {
    return Cal.XPtNW < Cal.XPtSE && Cal.YPtNW < Cal.YPtSE && Cal.LatPtNW > Cal.LatPtSE &&
           Cal.LonPtNW < Cal.LonPtSE && std::isfinite(Cal.LatPtNW - Cal.LatPtSE) &&
           std::isfinite(Cal.LonPtSE - Cal.LonPtNW);
}

Int Points_Refused(const Calibration& Cal) {
    if (Cal.CadNW_Done == 0 || Cal.CadSE_Done == 0) return 6;
    return Points_In_Order(Cal) ? 0 : 7;
}

bool Calibration_Can_Serve(const Calibration& Cal) {
    return Points_In_Order(Cal) && Grid_On_Globe(Cal) &&
           Lines_Stand_Apart(Cal.XGridNW, Cal.XGridSE) &&
           Lines_Stand_Apart(Cal.YGridNW, Cal.YGridSE);
}
