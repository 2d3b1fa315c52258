// grid/terrain_grid.cpp - closed forms of the grid searches and of the local scales.
#include "grid/terrain_grid.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr Double North_Pole = 90.0;
constexpr Double Dateline = -180.0;

// A Cell of level 13 counted over the whole globe. The lines of the coarser levels are lines of
// this one, so each coarser cell and the place inside it are the high and low bits.
constexpr Long Rows_13 = 16384, Cols_13 = 24576;
constexpr Long Rows_10 = 2048, Cols_10 = 3072;

constexpr Int High(Long Index, int Bits) {
    return static_cast<Int>(Index >> Bits);
}
constexpr Int Low(Long Index, int Bits) {
    return static_cast<Int>(Index & ((1L << Bits) - 1));
}

// The cell that a count of cells from the first edge falls in, of Nb cells.
Long Held_Index(Double Cells, Long Nb) {
    if (!(Cells > 0.0)) return 0;
    return Cells < Nb ? static_cast<Long>(Cells) : Nb - 1;
}

// Rounding keeps the order of values, and the lines are exact. So a position at or beyond a line
// never falls short of it, but one just before a line may be taken to lie on it.
Long Row_At(Double Lat, Double First_Line, Double Step, Long Nb) {
    const Long Row = Held_Index((First_Line - Lat) / Step, Nb);
    return Row > 0 && First_Line - Row * Step < Lat ? Row - 1 : Row;
}

Long Col_At(Double Lon, Double First_Line, Double Step, Long Nb) {
    const Long Col = Held_Index((Lon - First_Line) / Step, Nb);
    return Col > 0 && First_Line + Col * Step > Lon ? Col - 1 : Col;
}

// A Cell by its column and row on the globe.
struct Global_Cell {
    Long Col, Row;
};

Global_Cell Global_Cell_At(Geo G) {
    return {Col_At(G.Lon, Dateline, Cell_StepLon, Cols_13),
            Row_At(G.Lat, North_Pole, Cell_StepLat, Rows_13)};
}

Cell_Pos Cell_Of(Global_Cell C) {
    return {High(C.Col, 5), High(C.Row, 5), Low(C.Col, 5), Low(C.Row, 5)};
}

// Exact, like the sum of the steps of Area and Cell.
Geo Corner_Of(Global_Cell C) {
    return {North_Pole - C.Row * Cell_StepLat, C.Col * Cell_StepLon + Dateline};
}

// Rounded half to even, and held between First and Last.
Int Rounded_Loc(Double Units, Int First, Int Last) {
    return std::clamp(Round_Int(Units), First, Last);
}

// A cell along one axis: its width in degrees and in units, and the width of a unit.
struct Scale {
    Double Width;
    Int Last;
    Double Unit = Width / Last;
};
constexpr Scale Cell_Lon{Cell_StepLon, Loc_Cell_Span}, Cell_Lat{Cell_StepLat, Loc_Cell_Span};
constexpr Scale Area_Lon{Area_StepLon, Loc_Area_Span}, Area_Lat{Area_StepLat, Loc_Area_Span};

// Units from the edge at distance D. Within one unit of either edge a point is on it: a cut
// point misses the edge it was cut at by its rounding.
Int Snapped_Loc(Double D, const Scale& S) {
    if (D < S.Unit) return 0;
    if (std::fabs(D - S.Width) < S.Unit) return S.Last;
    return static_cast<Int>(Held_Index(S.Last * D / S.Width + 0.5, S.Last + 1));
}

// Whole before the origin is added: a Long holds the sum too, or its nearest value.
Long Raw_Loc(Double D, Double C) {
    return Fix_Lng(std::trunc(Loc_Area_Span * D / C + 0.5) + Loc_Area_Origin);
}

}  // namespace

Height Height_Pair(Double Alti) {
    const Double Whole = std::trunc(Alti);
    return {Fix_Lng(Whole), Fix_Lng(std::fabs((Alti - Whole) * 128.0))};
}

Cell_Pos LatLon_To_Cell(Geo G) {
    return Cell_Of(Global_Cell_At(G));
}

Cell_Pos LatLon_To_Cell_Shift(Geo G) {
    return Cell_Of({Col_At(G.Lon, Dateline - Cell_StepLon / 2, Cell_StepLon, Cols_13),
                    Row_At(G.Lat, North_Pole + Cell_StepLat / 2, Cell_StepLat, Rows_13)});
}

Cell_Pos Pixel_To_Cell_Shift(Pix P) {
    return LatLon_To_Cell_Shift(Pixel_To_LatLon(P));
}

Lod10_Pos LatLon_To_Lod10(Geo G) {
    const Long Row = Row_At(G.Lat, North_Pole, Lod10_StepLat, Rows_10);
    const Long Col = Col_At(G.Lon, Dateline, Lod10_StepLon, Cols_10);
    return {High(Col, 2), High(Row, 2), Low(Col, 2), Low(Row, 2)};
}

Lod10_Pos Pixel_To_Lod10(Pix P) {
    return LatLon_To_Lod10(Pixel_To_LatLon(P));
}

Lod5_Pos LatLon_To_Lod5(Geo G) {
    const Global_Cell C = Global_Cell_At(G);
    return {High(C.Col, 8), High(C.Row, 8), Low(C.Col, 8), Low(C.Row, 8)};
}

Lod5_Pos Cell_To_Lod5(const Cell_Pos& C) {
    return LatLon_To_Lod5(Cell_Centre(C));
}

Geo Area_Corner(Int AreaLon, Int AreaLat) {
    return {North_Pole - AreaLat * Area_StepLat, AreaLon * Area_StepLon + Dateline};
}

Geo Area_Centre(Int AreaLon, Int AreaLat) {
    const Geo Corner = Area_Corner(AreaLon, AreaLat);
    return {Corner.Lat - Area_StepLat / 2, Corner.Lon + Area_StepLon / 2};
}

Geo Cell_Corner(const Cell_Pos& C) {
    const Geo Corner = Area_Corner(C.AreaLon, C.AreaLat);
    return {Corner.Lat - C.CellLat * Cell_StepLat, Corner.Lon + C.CellLon * Cell_StepLon};
}

Geo Cell_Centre(const Cell_Pos& C) {
    const Geo Corner = Cell_Corner(C);
    return {Corner.Lat - Cell_StepLat / 2, Corner.Lon + Cell_StepLon / 2};
}

Loc_Cell Pixel_To_Cell_Loc(Pix P, Cell_Pos& C) {
    const Geo G = Pixel_To_LatLon(P);
    const Global_Cell At = Global_Cell_At(G);
    const Geo Corner = Corner_Of(At);
    C = Cell_Of(At);
    return {Rounded_Loc((G.Lon - Corner.Lon) * Loc_Cell_Span / Cell_StepLon, 0, Loc_Cell_Span),
            Rounded_Loc((Corner.Lat - G.Lat) * Loc_Cell_Span / Cell_StepLat, 0, Loc_Cell_Span)};
}

Loc_Area Pixel_To_Cell_Area_Loc(Pix P, Cell_Pos& C) {
    const Geo G = Pixel_To_LatLon(P);
    const Global_Cell At = Global_Cell_At(G);
    const Geo Corner = Corner_Of(At);
    C = Cell_Of(At);
    const Double X = (G.Lon - Corner.Lon) * Loc_Cell_Span / Cell_StepLon + Loc_Area_Origin +
                     Low(At.Col, 5) * Loc_Cell_Span;
    const Double Y = (Corner.Lat - G.Lat) * Loc_Cell_Span / Cell_StepLat + Loc_Area_Origin +
                     Low(At.Row, 5) * Loc_Cell_Span;
    return {Rounded_Loc(X, Loc_Area_Origin, Loc_Area_Last),
            Rounded_Loc(Y, Loc_Area_Origin, Loc_Area_Last)};
}

Loc_Area Pixel_To_Area_Loc(Pix P, Cell_Pos& C) {
    const Geo G = Pixel_To_LatLon(P);
    const Global_Cell At = Global_Cell_At(G);
    C = {High(At.Col, 5), High(At.Row, 5), 0, 0};
    const Geo Corner = Corner_Of({At.Col & ~31, At.Row & ~31});
    const Double X = (G.Lon - Corner.Lon) * Loc_Area_Span / Area_StepLon + Loc_Area_Origin;
    const Double Y = (Corner.Lat - G.Lat) * Loc_Area_Span / Area_StepLat + Loc_Area_Origin;
    return {Rounded_Loc(X, Loc_Area_Origin, Loc_Area_Last),
            Rounded_Loc(Y, Loc_Area_Origin, Loc_Area_Last)};
}

Loc_Cell Pixel_Loc_In_Cell(Pix P, const Cell_Pos& C) {
    const Geo G = Pixel_To_LatLon(P);
    const Geo Corner = Cell_Corner(C);
    return {Snapped_Loc(std::fabs(G.Lon - Corner.Lon), Cell_Lon),
            Snapped_Loc(std::fabs(G.Lat - Corner.Lat), Cell_Lat)};
}

Loc_Area Pixel_Loc_In_Area(Pix P, Int AreaLon, Int AreaLat) {
    const Geo G = Pixel_To_LatLon(P);
    const Geo Corner = Area_Corner(AreaLon, AreaLat);
    const Int X = Snapped_Loc(std::fabs(G.Lon - Corner.Lon), Area_Lon);
    const Int Y = Snapped_Loc(std::fabs(G.Lat - Corner.Lat), Area_Lat);
    return {static_cast<Int>(X + Loc_Area_Origin), static_cast<Int>(Y + Loc_Area_Origin)};
}

Loc_Area_Raw Pixel_Loc_In_Area_Raw(Pix P, Int AreaLon, Int AreaLat) {
    const Geo G = Pixel_To_LatLon(P);
    const Geo Corner = Area_Corner(AreaLon, AreaLat);
    return {Raw_Loc(std::fabs(G.Lon - Corner.Lon), Area_StepLon),
            Raw_Loc(std::fabs(G.Lat - Corner.Lat), Area_StepLat)};
}

std::string Cell_Quad_Name(const Cell_Pos& C) {
    constexpr int Bits = 15;
    const Long X = C.AreaLon * Nb_Cell_In_Area + C.CellLon;
    const Long Y = C.AreaLat * Nb_Cell_In_Area + C.CellLat;
    std::string Name;
    for (int Bit = Bits - 1; Bit >= 0; --Bit)
        Name += static_cast<char>('0' + (X >> Bit & 1) + 2 * (Y >> Bit & 1));
    return Name;
}
