// grid/grid_lines.cpp - stepping over the work grid.
#include "grid/grid_lines.h"

#include <algorithm>
#include <cmath>

#include "core/model.h"
#include "grid/terrain_grid.h"

namespace {

// Each line is the one before it plus a step: the sum, not the product, is what is compared.
std::vector<Double> Lines_From(Double First, Double Step, Double Last, Double Most) {
    std::vector<Double> Lines;
    if (!(Step > 0.0) || !((Last + Step - First) / Step < Most)) return Lines;
    for (Double Line = First;; Line += Step) {
        Lines.push_back(Line);
        if (Last + Step <= Line) return Lines;
    }
}

}  // namespace

Grid_Lines Grid_Lines_Of(Int Mode) {
    const bool By_Area = Mode == 2;
    const Double StepLat = By_Area ? Area_StepLat : Cell_StepLat;
    const Double StepLon = By_Area ? Area_StepLon : Cell_StepLon;
    const Double TolDiv = By_Area ? 16321.1 : 512.1;
    const Double PixLat = (YGridSE - YGridNW) / (LatGridNW - LatGridSE) * StepLat;
    const Double PixLon = (XGridSE - XGridNW) / (LonGridSE - LonGridNW) * StepLon;
    const Long Row0 = std::max(Fix_Lng((90 - LatGridNW) / StepLat) - 3, 0);
    const Long Col0 = std::max(Fix_Lng((LonGridNW + 180) / StepLon) - 3, 0);
    const Double Lat0 = 90 - Row0 * StepLat, Lon0 = Col0 * StepLon - 180;
    const Double LineY = YGridNW - (Lat0 - LatGridNW) * PixLat / StepLat;
    const Double LineX = XGridNW - std::abs(Lon0 - LonGridNW) * PixLon / StepLon;
    // Twice round the globe: no work grid that can serve has so many lines.
    const Double Most_Rows = 360 / StepLat, Most_Cols = 720 / StepLon;
    return {Lines_From(LineY, PixLat, YGridSE, Most_Rows),
            Lines_From(LineX, PixLon, XGridSE, Most_Cols), PixLon / TolDiv, PixLat / TolDiv};
}

Line_Range Lines_Between(std::span<const Double> Lines, Double Low, Double High) {
    if (Lines.empty() || !(Low <= High)) return {};
    // The lines are evenly spaced but for rounding, so a guess is all but right.
    const auto Last = Lines.size() - 1;
    const Double Per_Line = Last > 0 ? static_cast<Double>(Last) / (Lines[Last] - Lines[0]) : 0.0;
    const Double Guess = std::clamp((Low - Lines[0]) * Per_Line, 0.0, static_cast<Double>(Last));
    auto First = static_cast<std::size_t>(Guess);
    while (First > 0 && Lines[First - 1] >= Low) --First;
    while (First < Lines.size() && Lines[First] < Low) ++First;
    std::size_t End = First;
    while (End < Lines.size() && Lines[End] <= High) ++End;
    return {First, End};
}
