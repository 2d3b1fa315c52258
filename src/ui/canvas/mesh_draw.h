// ui/canvas/mesh_draw.h - the mesh of altitudes and its points on the canvas.
#pragma once

#include "core/numbers.h"

/// Works out the visible grid and paints the lines of the mesh that LodMesh stands for: those on
/// edges of Cells solid, the others dotted.
void Mesh_Draw();

/// The cross of altitude point I. Does not refresh.
void PtGrid_Mark(Long I);
/// The crosses of all that are live and can be seen.
void PtGrid_Marks_Draw();
