// grid/grid_lines.h - the lines that polygons and lines are cut along.
#pragma once

#include <span>
#include <vector>

#include "core/numbers.h"
#include "grid/terrain_grid.h"

/// Parallels and meridians of a grid over the work grid and some way round it, in map pixels,
/// ascending.
struct Grid_Lines {
    std::vector<Double> Y, X;
    Double TolX = 0.0, TolY = 0.0;  // a little under half of one local unit
};

/// How a cutter steps over a grid.
struct Grid_Walk {
    Double StepLat, StepLon;  // the grid, degrees
    Double TolDiv;            // a step in pixels over this is the tolerance
    Long Before;              // cells before the work grid where the lines begin
    bool One_Beyond;          // goes on to a whole step beyond the work grid, not just to its edge
    Int Parts = 1;            // lines to a step
};

inline constexpr Grid_Walk Polys_By_Area{Area_StepLat, Area_StepLon, 16321.1, 3, true};
inline constexpr Grid_Walk Polys_By_Cell{Cell_StepLat, Cell_StepLon, 512.1, 3, true};
inline constexpr Grid_Walk Lines_By_Area{Area_StepLat, Area_StepLon, 16321.1, 2, false};
inline constexpr Grid_Walk Coasts_By_Cell{Cell_StepLat, Cell_StepLon, 512.1, 2, false};
/// The first of these lines lies as many half squares before the work grid as the grid itself
/// has squares there, so that they need not be lines of the grid.
inline constexpr Grid_Walk Lines_By_Half_Lod10{Lod10_StepLat, Lod10_StepLon, 4080.6, 2, false, 2};

/// No lines without a work grid that can serve.
Grid_Lines Grid_Lines_Of(const Grid_Walk& Walk);

/// The places, from 0, of the lines from Low to High, ends included.
struct Line_Range {
    std::size_t First = 0, End = 0;
};
Line_Range Lines_Between(std::span<const Double> Lines, Double Low, Double High);
