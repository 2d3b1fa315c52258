// grid/map_limits.cpp - the values derived from the calibration, and the move of the cells.
#include "grid/map_limits.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "grid/terrain_grid.h"

namespace {

// Without a derived value.
Calibration Points_Alone(const Calibration& Cal) {
    Calibration Points;
    Points.LatPtNW = Cal.LatPtNW;
    Points.LonPtNW = Cal.LonPtNW;
    Points.LatPtSE = Cal.LatPtSE;
    Points.LonPtSE = Cal.LonPtSE;
    Points.XPtNW = Cal.XPtNW;
    Points.YPtNW = Cal.YPtNW;
    Points.XPtSE = Cal.XPtSE;
    Points.YPtSE = Cal.YPtSE;
    Points.CadNW_Done = Cal.CadNW_Done;
    Points.CadSE_Done = Cal.CadSE_Done;
    return Points;
}

// A divisor of 0, or one that is all but 0, shows in the derived values; a scale of 0 does not.
bool Limits_Exist(const Calibration& Cal) {
    const std::array Derived{Cal.LatMapNW, Cal.LonMapNW, Cal.LatMapSE, Cal.LonMapSE,
                             Cal.XGridNW,  Cal.YGridNW,  Cal.XGridSE,  Cal.YGridSE};
    return Cal.XPtNW != Cal.XPtSE && Cal.YPtNW != Cal.YPtSE &&
           std::all_of(Derived.begin(), Derived.end(), [](Double X) { return std::isfinite(X); });
}

void Map_Degrees(Calibration& Cal, Long Width, Long Height) {
    const Double Rows = std::fabs(static_cast<Double>(Cal.YPtSE) - Cal.YPtNW);
    const Double Cols = std::fabs(static_cast<Double>(Cal.XPtSE) - Cal.XPtNW);
    const Double Y_SE = std::fabs(static_cast<Double>(Cal.YPtSE));
    const Double X_SE = std::fabs(static_cast<Double>(Cal.XPtSE));
    const Double Last_Row = Height - 1.0;
    const Double Last_Col = Width - 1.0;
    Cal.LatMapNW = Cal.LatPtNW + std::fabs(Cal.LatPtNW - Cal.LatPtSE) * Cal.YPtNW / Rows;
    Cal.LatMapSE = Cal.LatMapNW - std::fabs(Cal.LatPtSE - Cal.LatMapNW) * Last_Row / Y_SE;
    Cal.LonMapNW = Cal.LonPtNW - std::fabs(Cal.LonPtNW - Cal.LonPtSE) * Cal.XPtNW / Cols;
    Cal.LonMapSE = Cal.LonMapNW + std::fabs(Cal.LonPtSE - Cal.LonMapNW) * Last_Col / X_SE;
}

void Map_Cells(Calibration& Cal) {
    const Cell_Pos NW = LatLon_To_Cell({Cal.LatMapNW, Cal.LonMapNW});
    Cal.AreaLatMapNW = NW.AreaLat;
    Cal.CellLatMapNW = NW.CellLat;
    Cal.AreaLonMapNW = NW.AreaLon;
    Cal.CellLonMapNW = NW.CellLon;
    const Cell_Pos SE = LatLon_To_Cell({Cal.LatMapSE, Cal.LonMapSE});
    Cal.AreaLatMapSE = SE.AreaLat;
    Cal.CellLatMapSE = SE.CellLat;
    Cal.AreaLonMapSE = SE.AreaLon;
    Cal.CellLonMapSE = SE.CellLon;
}

// One Cell north or west, unless it is the first of the globe.
void Step_Back(Int& In_Area, Int& Cell) {
    if (Cell != 0) {
        --Cell;
    } else if (In_Area != 0) {
        --In_Area;
        Cell = Nb_Cell_In_Area - 1;
    }
}

// One Cell south or east, unless it is the last of the globe.
void Step_On(Int& In_Area, Int& Cell, Int Nb_Areas) {
    if (Cell != Nb_Cell_In_Area - 1) {
        ++Cell;
    } else if (In_Area != Nb_Areas - 1) {
        ++In_Area;
        Cell = 0;
    }
}

void Grid_Cells(Calibration& Cal) {
    Cal.AreaLatGridNW = Cal.AreaLatMapNW;
    Cal.CellLatGridNW = Cal.CellLatMapNW;
    Cal.AreaLonGridNW = Cal.AreaLonMapNW;
    Cal.CellLonGridNW = Cal.CellLonMapNW;
    Step_Back(Cal.AreaLatGridNW, Cal.CellLatGridNW);
    Step_Back(Cal.AreaLonGridNW, Cal.CellLonGridNW);
    Cal.AreaLatGridSE = Cal.AreaLatMapSE;
    Cal.CellLatGridSE = Cal.CellLatMapSE;
    Cal.AreaLonGridSE = Cal.AreaLonMapSE;
    Cal.CellLonGridSE = Cal.CellLonMapSE;
    Step_On(Cal.AreaLatGridSE, Cal.CellLatGridSE, Nb_AreaLat);
    Step_On(Cal.AreaLonGridSE, Cal.CellLonGridSE, Nb_AreaLon);
}

void Grid_Degrees(Calibration& Cal) {
    const Geo NW =
        Cell_Corner({Cal.AreaLonGridNW, Cal.AreaLatGridNW, Cal.CellLonGridNW, Cal.CellLatGridNW});
    Cal.LatGridNW = NW.Lat;
    Cal.LonGridNW = NW.Lon;
    const Geo SE =
        Cell_Corner({Cal.AreaLonGridSE, Cal.AreaLatGridSE, Cal.CellLonGridSE, Cal.CellLatGridSE});
    Cal.LatGridSE = SE.Lat - Cell_StepLat;
    Cal.LonGridSE = SE.Lon + Cell_StepLon;
}

void Grid_Pixels(Calibration& Cal) {
    const Double Sx = (static_cast<Double>(Cal.XPtSE) - Cal.XPtNW) / (Cal.LonPtSE - Cal.LonPtNW);
    const Double Sy = (static_cast<Double>(Cal.YPtSE) - Cal.YPtNW) / (Cal.LatPtNW - Cal.LatPtSE);
    Cal.XGridNW = Sx * (Cal.LonGridNW - Cal.LonMapNW);
    Cal.YGridNW = Sy * (Cal.LatMapNW - Cal.LatGridNW);
    Cal.XGridSE = Sx * (Cal.LonGridSE - Cal.LonMapNW);
    Cal.YGridSE = Sy * (Cal.LatMapNW - Cal.LatGridSE);
}

// Where G of the old calibration lies now, through its pixel; nothing when it has no pixel.
std::optional<Geo> Moved(Geo G, const Calibration& Old) {
    const Geo To = Pixel_To_LatLon(LatLon_To_Pixel(G, Old));
    if (!std::isfinite(To.Lat) || !std::isfinite(To.Lon)) return {};
    return To;
}

void Move_Lod8(const Calibration& Old) {
    for (Lod8& Record : Tab_Lod8.Edit_Rows()) {
        const auto To = Moved(Area_Centre(Record.AreaLon, Record.AreaLat), Old);
        if (!To) continue;
        const Cell_Pos C = LatLon_To_Cell(*To);
        Record.AreaLon = C.AreaLon;
        Record.AreaLat = C.AreaLat;
    }
}

template <typename R>
void Move_By_Centre(Project_Table<R>& Tab, const Calibration& Old) {
    for (Cell_Pos& C : Tab.Edit_Rows()) {
        if (const auto To = Moved(Cell_Centre(C), Old)) C = LatLon_To_Cell(*To);
    }
}

// Class cells sit on the corners of the grid.
template <typename R>
void Move_By_Corner(Project_Table<R>& Tab, const Calibration& Old) {
    for (Cell_Pos& C : Tab.Edit_Rows()) {
        if (const auto To = Moved(Cell_Corner(C), Old)) C = LatLon_To_Cell_Shift(*To);
    }
}

}  // namespace

void Compute_Map_Limits(Calibration& Cal, Long Width, Long Height) {
    Map_Degrees(Cal, Width, Height);
    Compute_Grid_Limits(Cal);
}

void Compute_Grid_Limits(Calibration& Cal) {
    Map_Cells(Cal);
    Grid_Cells(Cal);
    Grid_Degrees(Cal);
    Grid_Pixels(Cal);
    if (!Limits_Exist(Cal)) Cal = Points_Alone(Cal);
}

void Reproject_Cells(const Calibration& Old) {
    Move_Lod8(Old);
    Move_By_Centre(Tab_Area, Old);
    Move_By_Centre(Tab_Excl, Old);
    Move_By_Corner(Tab_LC, Old);
    Move_By_Corner(Tab_WC, Old);
}
