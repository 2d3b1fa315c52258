// grid/grid_lines.cpp - stepping over the work grid.
#include "grid/grid_lines.h"

#include <algorithm>
#include <cmath>

#include "core/model.h"

namespace {

// Each line is the one before it plus a step: the sum, not the product, is what is compared.
std::vector<Double> Lines_From(Double First, Double Step, Double Last, Double Most) {
    std::vector<Double> Lines;
    if (!(Step > 0.0) || !((Last + Step - First) / Step < Most)) return Lines;
    for (Double Line = First;; Line += Step) {
        Lines.push_back(Line);
        if (Last <= Line) return Lines;
    }
}

}  // namespace

Grid_Lines Grid_Lines_Of(const Grid_Walk& W) {
    const Double PixLat = (YGridSE - YGridNW) / (LatGridNW - LatGridSE) * W.StepLat / W.Parts;
    const Double PixLon = (XGridSE - XGridNW) / (LonGridSE - LonGridNW) * W.StepLon / W.Parts;
    const Long Row0 = std::max(Fix_Lng((90 - LatGridNW) / W.StepLat) - W.Before, 0);
    const Long Col0 = std::max(Fix_Lng((LonGridNW + 180) / W.StepLon) - W.Before, 0);
    const Double Lat0 = 90 - Row0 * W.StepLat, Lon0 = Col0 * W.StepLon - 180;
    const Double LineY = YGridNW - (Lat0 - LatGridNW) * PixLat / W.StepLat;
    const Double LineX = XGridNW - std::abs(Lon0 - LonGridNW) * PixLon / W.StepLon;
    const Double LastY = W.One_Beyond ? YGridSE + PixLat : YGridSE;
    const Double LastX = W.One_Beyond ? XGridSE + PixLon : XGridSE;
    // Twice round the globe: no work grid that can serve has so many lines.
    const Double Most_Rows = 360 / W.StepLat * W.Parts, Most_Cols = 720 / W.StepLon * W.Parts;
    return {Lines_From(LineY, PixLat, LastY, Most_Rows),
            Lines_From(LineX, PixLon, LastX, Most_Cols), PixLon / W.TolDiv, PixLat / W.TolDiv};
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
