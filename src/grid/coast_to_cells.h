// grid/coast_to_cells.h - the finished surfaces of the coastlines.
#pragma once

#include <span>

#include "grid/work_lists.h"

/// Whether the points are the four corners of a Cell, clockwise.
bool Fills_Cell(std::span<const CPt> Points);

/// The same for the pieces of one Cell together: whether the edges that no two of them share run
/// round the Cell. Polys is a stretch of a list whose points are in Points.
bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points);

/// Moves the pieces of Tab_WPoly to Tab_CCoast and Tab_CCoastPt, in local coordinates of their
/// Cells and sorted by them (Poly_To_Cells). Pieces that fill their Cell, alone or together, are
/// left out: filling a Cell needs no polygon.
void Coast_To_Cells();
