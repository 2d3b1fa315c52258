// grid/grid_lines.h - the lines that polygons are cut along.
#pragma once

#include <span>
#include <vector>

#include "core/numbers.h"

/// Parallels and meridians of a grid over the work grid and up to three cells round it, in map
/// pixels, ascending.
struct Grid_Lines {
    std::vector<Double> Y, X;
    Double TolX = 0.0, TolY = 0.0;  // a little under half of one local unit
};

/// Mode 2 is the Area grid, any other the Cell grid. No lines without a work grid that can serve.
Grid_Lines Grid_Lines_Of(Int Mode);

/// The places, from 0, of the lines from Low to High, ends included.
struct Line_Range {
    std::size_t First = 0, End = 0;
};
Line_Range Lines_Between(std::span<const Double> Lines, Double Low, Double High);
