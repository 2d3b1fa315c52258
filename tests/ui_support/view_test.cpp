// tests/ui_support/view_test.cpp - a map whose every line has a round position.
#include "ui_support/view_test.h"

#include "core/program.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/view.h"

View_Test::View_Test() {
    View_Resize(301, 251);
    Map_Width = 200;
    Map_Height = 160;
    Lay_Grid(128, 3);
    View_Reset();
    View_Center_Map();
    Projet_Open = Edit_On = 1;
    Canvas.Ops.clear();
}

void View_Test::Lay_Grid(int North_Areas, int East_Areas) {
    The_Calibration = {};
    LatGridNW = North_Areas * Area_StepLat + 3 * Cell_StepLat;
    LonGridNW = East_Areas * Area_StepLon - 2 * Cell_StepLon;
    LatGridSE = LatGridNW - 10 * Cell_StepLat;
    LonGridSE = LonGridNW + 12 * Cell_StepLon;
    XGridNW = YGridNW = -20.0;
    XGridSE = 220.0;
    YGridSE = 180.0;
    LatPtNW = LatGridNW - Cell_StepLat;
    LonPtNW = LonGridNW + Cell_StepLon;
    LatPtSE = LatPtNW - 8 * Cell_StepLat;
    LonPtSE = LonPtNW + 10 * Cell_StepLon;
    XPtSE = 200;
    YPtSE = 160;
}

Cell_Pos View_Test::Cell_At(int Col, int Row) {
    return LatLon_To_Cell(
        {LatGridNW - (Row + 0.5) * Cell_StepLat, LonGridNW + (Col + 0.5) * Cell_StepLon});
}
