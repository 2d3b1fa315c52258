// reference/polygons.h - the plain rules from the drawn objects to the finished pieces.
#pragma once

#include <span>
#include <vector>

#include "reference/lists.h"

namespace reference {

/// Fills the work lists with the pieces of the model's polygons, or leaves Has_Imbric and
/// Has_Auto both 0. Mode 0: mask polygons on the Cell grid; 2: textured polygons on the Area
/// grid; 1: the third technique.
void Poly_Prepare(Int Mode);

/// Steps of Poly_Prepare, in their order. Poly_Collect cleans and turns the objects of the Mode
/// into Tab_WPoly; Poly_Self_Cross returns 3 at the first outline that crosses itself.
void Poly_Collect(Int Mode);
Int Poly_Self_Cross();

/// Whether an outline of 3 points or more already runs clockwise.
bool Poly_Orientation(std::span<const Pix> Points);

/// Draw_Order and Group_Root from the Imbrication texts, then from containment. Auto_Order
/// returns 4 when polygons cross one another, else 0; Auto_Tree goes on from its lists.
void Imbric_Order();
Int Auto_Order();
void Auto_Tree();

/// Convex pieces of fewer than Limit points.
void Poly_Split_Max(Long Limit);
/// The pieces cut along every line of the Area grid (Mode 2) or the Cell grid.
void Poly_Cut_Cells(Int Mode);

/// Copies Count + 1 points of polygon K from place Start on into a new piece: a prefix of the
/// outline, or a run closed with its first point.
void Copy_Run(Long K, Long Start, Long Count);

/// Tab_CPoly and Tab_CPt from the work lists, which are emptied. Mode 2 is the Area grid.
void Poly_To_Cells(Int Mode);

}  // namespace reference
