// reference/coasts.h - the plain rules of coastline surfaces.
#pragma once

#include <span>

#include "reference/lists.h"

namespace reference {

/// The pieces of the surfaces of the model's coastlines in Tab_CPoly and Tab_CPt, and Messages;
/// none when a line crosses itself or cannot be closed.
void Coast_Generate();

/// Steps of Coast_Generate, in their order, on the work lists. Coast_Self_Cross returns 3 at the
/// first line that crosses itself; Coast_Cut_Cells and Coast_Close leave no line when they fail.
Int Coast_Self_Cross();
void Coast_Cut_Cells();
void Coast_Close();
void Coast_Polys();
void Coast_To_Cells();

/// The first half of Coast_Cut_Cells, a point at every crossing of the Cell grid: each grid line
/// taken along all lines of Tab_WPoly before the next.
void Coast_Crossings();

/// Whether the edges that the pieces of one Cell do not share run round the Cell. The list of
/// edges is gone through again and again.
bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points);

}  // namespace reference
