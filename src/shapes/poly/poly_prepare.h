// shapes/poly/poly_prepare.h - from the drawn polygons to pieces that lie in one cell each.
//
// An emitter calls Poly_Prepare and, when Has_Imbric or Has_Auto is set after it, goes on to
// Poly_To_Cells. It resets the lists at its end (Work_Lists_Reset).
#pragma once

#include "shapes/poly/poly_collect.h"
#include "shapes/poly/poly_cut.h"
#include "shapes/poly/poly_nesting.h"
#include "shapes/poly/poly_split.h"
#include "shapes/poly/work_lists.h"

/// Fills Tab_WPoly and Tab_WPt with convex pieces of the polygons of a Poly_Mode. When an outline
/// crosses itself (message 121) or two cross each other (message 122), or when there are none,
/// Has_Imbric and Has_Auto are both 0.
void Poly_Prepare(Int Mode);

/// Cuts the pieces of Tab_WPoly along the grid: mask polygons by Cells, textured ones by Areas
/// (Poly_Cut_Cells). Gives each its cell and its points their local coordinates, drops those that
/// have shrunk to nothing, and sorts: cells from north to south and from west to east, nesting
/// groups inside a cell, outermost polygons first. Fills Tab_CPoly and Tab_CPt and empties the work
/// lists. Only what is kept takes memory: of many polygons most pieces may go.
void Poly_To_Cells(Int Mode);

/// The same into other lists. Pieces for which Drops holds, without their repeated points, are
/// left out.
void Poly_To_Cells_Into(Int Mode, Table<CPoly>& Polys, Table<CPt>& Places,
                        bool (*Drops)(std::span<const CPt>) = nullptr);
