// ui/canvas/read_out.cpp - the place under the mouse, in map pixels, degrees and Cells.
#include <cmath>
#include <string>

#include "core/host.h"
#include "core/number_text.h"
#include "core/program.h"
#include "core/typed_number.h"
#include "geo/latlon_text.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/view.h"

namespace {

constexpr const char* Labels[] = {"L_MouseBmp", "LLat",           "LLon",       "LLatDec",
                                  "LLonDec",    "L_NumCell_Area", "L_CustomBmp"};

void Set_Label(const char* Label, const std::string& Text) {
    The_Host().Set_Caption(Label, Text);
}

void Empty_Labels() {
    for (const char* Label : Labels) Set_Label(Label, {});
}

// X between First and Last; Last wins where they are out of order.
Double Held(Double X, Double First, Double Last) {
    if (X < First) X = First;
    return X > Last ? Last : X;
}

struct Held_Place {
    Pic_Px At;
    bool Was_Outside;  // of the grid rectangle
};

Held_Place Hold_In_Grid(Pic_Px P) {
    const Pic_Px NW = Map_To_Pic({XGridNW, YGridNW}), SE = Map_To_Pic({XGridSE, YGridSE});
    const Pic_Px On_Pic{Held(P.X, 0.0, Pic_Width - 1.0), Held(P.Y, 0.0, Pic_Height - 1.0)};
    const Pic_Px At{Held(On_Pic.X, NW.X, SE.X), Held(On_Pic.Y, NW.Y, SE.Y)};
    return {At, At != On_Pic};
}

// The straight line through both points of the calibration, from the rounded pixel.
Geo Degrees_At(Long X, Long Y) {
    const Double Rows = static_cast<Double>(YPtSE) - YPtNW;
    const Double Cols = static_cast<Double>(XPtSE) - XPtNW;
    return {(static_cast<Double>(Y) - YPtNW) * (LatPtSE - LatPtNW) / Rows + LatPtNW,
            (static_cast<Double>(X) - XPtNW) * (LonPtSE - LonPtNW) / Cols + LonPtNW};
}

// Far from any degree, and where the seven decimals still are whole numbers.
bool Can_Be_Told(Geo G) {
    constexpr Double Most = 1e6;
    return std::fabs(G.Lat) < Most && std::fabs(G.Lon) < Most;
}

std::string Plain(Long X) {
    return std::string(Num_Text(X));
}

std::string Seven_Decimals(Double X) {
    return Shown_Number(std::floor(X * 1e7) / 1e7);
}

void Fill_Labels(Long X, Long Y, Geo G) {
    Cell_Pos C;
    const Loc_Cell In_Cell = Pixel_To_Cell_Loc({static_cast<Double>(X), static_cast<Double>(Y)}, C);
    Set_Label("L_MouseBmp", "Mouse " + Plain(X) + "x" + Plain(Y));
    Set_Label("LLat", Lat_To_Text(G.Lat));
    Set_Label("LLon", Lon_To_Text(G.Lon));
    Set_Label("LLatDec", Seven_Decimals(G.Lat));
    Set_Label("LLonDec", Seven_Decimals(G.Lon));
    Set_Label("L_NumCell_Area", "C: " + Plain(C.AreaLon) + "-" + Plain(C.AreaLat) +
                                    "  A: " + Plain(C.CellLon) + "-" + Plain(C.CellLat) + "  x,y " +
                                    Plain(In_Cell.LocX) + "-" + Plain(In_Cell.LocY));
    Set_Label("L_CustomBmp", Cell_Quad_Name(C) + "xx.Bmp");
}

}  // namespace

void Mouse_Read_Out(Pic_Px P) {
    if (Edit_On == 0 || Dialog_Up != 0) return;
    const Held_Place Place = Hold_In_Grid(P);
    const Pix On_Map = Pic_To_Map(Place.At);
    Move_Raw = P;
    Mouse_Off_Grid = Place.Was_Outside;
    Move_X = Place.At.X, Move_Y = Place.At.Y;
    Move_Map_X = On_Map.X, Move_Map_Y = On_Map.Y;
    Mouse_Map_X = Round_Lng(On_Map.X), Mouse_Map_Y = Round_Lng(On_Map.Y);
    const Geo G = Degrees_At(Mouse_Map_X, Mouse_Map_Y);
    if (Place.Was_Outside || !Can_Be_Told(G)) return Empty_Labels();
    Fill_Labels(Mouse_Map_X, Mouse_Map_Y, G);
}

void Mouse_Click_At(Pic_Px P) {
    const Held_Place Place = Hold_In_Grid(P);
    const Pix On_Map = Pic_To_Map(Place.At);
    Click_Raw = P;
    Click_X = Place.At.X, Click_Y = Place.At.Y;
    Click_Map_X = On_Map.X, Click_Map_Y = On_Map.Y;
}
