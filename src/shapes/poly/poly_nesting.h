// shapes/poly/poly_nesting.h - which polygon must be drawn before which.
//
// Generated polygons have no holes: a lake with an island is the lake and then the island over
// it. So each WPoly gets a Group_Root, which keeps a nesting group together, and a Draw_Order,
// which is higher the further out it lies. Both are given before the convex split; every piece
// inherits them.
#pragma once

#include "shapes/poly/work_lists.h"

/// Orders the polygons with an Imbrication text by it. Texts that share their first three
/// characters are a group; the one that sorts last is drawn first. Sets Has_Imbric when there is
/// such a polygon.
void Imbric_Order();

/// Sets Has_Auto when there are polygons without such a text, and finds out which of them lie
/// inside which. Returns 4 when two of them cross or touch, else 0.
Int Auto_Order();

/// Numbers the polygons that Auto_Order has found, each above all that lie inside it.
void Auto_Tree();
