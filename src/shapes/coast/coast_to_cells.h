// shapes/coast/coast_to_cells.h - the finished surfaces of the coastlines.
#pragma once

/// Cuts the pieces of Tab_WPoly along the grid and moves them to Tab_CCoast and Tab_CCoastPt, in
/// local coordinates of their Cells and sorted by them (Poly_To_Cells). Pieces that fill their
/// Cell, alone or together, are left out: filling a Cell needs no polygon.
void Coast_To_Cells();
