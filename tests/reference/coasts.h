// reference/coasts.h - the plain rules of coastline surfaces where the program has shorter ways.
#pragma once

#include <span>

#include "reference/lists.h"

namespace reference {

/// A point at every crossing of the Cell grid: each grid line taken along all lines of Tab_WPoly
/// before the next.
void Coast_Crossings();

/// Whether the edges that the pieces of one Cell do not share run round the Cell. The list of
/// edges is gone through again and again.
bool Fill_Cell(std::span<const CPoly> Polys, const Table<CPt>& Points);

}  // namespace reference
