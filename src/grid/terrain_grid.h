// grid/terrain_grid.h - the simulator's nested grids: degrees to cells and to the small whole
// numbers that address a point inside a cell.
//
// A cell of level n is 90/2^n degrees high and 120/2^n degrees wide; rows count from +90 south,
// columns from -180 east. All steps are binary fractions, so their multiples are exact. A point
// on a parallel belongs to the cell south of it, one on a meridian to the cell east of it.
// Positions at or beyond a pole or +180 degrees lie outside every cell; they give the nearest,
// and what is not a number counts as the first row or column.
//
// Operations on pixels go through the calibration in use.
#pragma once

#include <string>

#include "core/model.h"
#include "geo/calibration.h"

inline constexpr Double Lod5_StepLat = 2.8125, Lod5_StepLon = 3.75;
inline constexpr Double Area_StepLat = 0.3515625, Area_StepLon = 0.46875;
inline constexpr Double Lod10_StepLat = 0.087890625, Lod10_StepLon = 0.1171875;
inline constexpr Double Cell_StepLat = 0.010986328125, Cell_StepLon = 0.0146484375;

/// A point inside a Cell: 0 to 255 from its west and north edges.
struct Loc_Cell {
    Int LocX = 0;
    Int LocY = 0;
    bool operator==(const Loc_Cell&) const = default;
};

/// A point inside an Area: 4080 to 12240 from its west and north edges, 255 units a Cell.
struct Loc_Area {
    Int LocX = 0;
    Int LocY = 0;
    bool operator==(const Loc_Area&) const = default;
};

inline constexpr Int Loc_Cell_Span = 255;
inline constexpr Int Loc_Area_Origin = 4080;
inline constexpr Int Loc_Area_Span = 8160;  // 32 * 255
inline constexpr Int Loc_Area_Last = 12240;

/// A square of level 10: its Area, and row and column 0 to 3 inside it.
struct Lod10_Pos {
    Int AreaLon = 0, AreaLat = 0;
    Int Col = 0, Row = 0;
    bool operator==(const Lod10_Pos&) const = default;
};

/// A Cell as row and column 0 to 255 inside a square of level 5.
struct Lod5_Pos {
    Int Lod5_Lon = 0, Lod5_Lat = 0;
    Int Col = 0, Row = 0;
    bool operator==(const Lod5_Pos&) const = default;
};

/// The height pair of an altitude in metres: whole metres cut toward zero, and the rest in
/// 1/128 metre, never negative.
struct Height {
    Long H_Int = 0;
    Long H_Frac = 0;
    bool operator==(const Height&) const = default;
};
Height Height_Pair(Double Alti);

Cell_Pos LatLon_To_Cell(Geo G);
/// The same on the grid moved half a Cell north and west: the Cell whose north-west corner is
/// the corner nearest to G.
Cell_Pos LatLon_To_Cell_Shift(Geo G);
Cell_Pos Pixel_To_Cell_Shift(Pix P);
Lod10_Pos LatLon_To_Lod10(Geo G);
Lod10_Pos Pixel_To_Lod10(Pix P);
Lod5_Pos LatLon_To_Lod5(Geo G);
/// The square of level 5 under the centre of a Cell.
Lod5_Pos Cell_To_Lod5(const Cell_Pos& C);

/// North-west corners and centres, in degrees.
Geo Area_Corner(Int AreaLon, Int AreaLat);
Geo Area_Centre(Int AreaLon, Int AreaLat);
Geo Cell_Corner(const Cell_Pos& C);
Geo Cell_Centre(const Cell_Pos& C);

/// The Cell under P and the place of P in it, rounded half to even and held inside the Cell.
Loc_Cell Pixel_To_Cell_Loc(Pix P, Cell_Pos& C);
/// The same on the Area scale, from the Cell's edges.
Loc_Area Pixel_To_Cell_Area_Loc(Pix P, Cell_Pos& C);
/// The same on the Area scale, from the Area's edges; CellLon and CellLat of C are set to 0.
Loc_Area Pixel_To_Area_Loc(Pix P, Cell_Pos& C);

/// The place of P in a cell given beforehand: within one unit of an edge it is that edge, and
/// distances are absolute, so a point just outside counts as just inside.
Loc_Cell Pixel_Loc_In_Cell(Pix P, const Cell_Pos& C);
Loc_Area Pixel_Loc_In_Area(Pix P, Int AreaLon, Int AreaLat);

/// The place of P on the Area scale of an Area, neither snapped nor limited to it, so that it
/// may pass the width of an Int. Distances are absolute here too.
struct Loc_Area_Raw {
    Long LocX = 0;
    Long LocY = 0;
    bool operator==(const Loc_Area_Raw&) const = default;
};
Loc_Area_Raw Pixel_Loc_In_Area_Raw(Pix P, Int AreaLon, Int AreaLat);

/// The 15 characters, 0 to 3, that name the Cell's texture file: binary digits of column
/// (worth 1) and row (worth 2) from the most significant one on.
std::string Cell_Quad_Name(const Cell_Pos& C);
