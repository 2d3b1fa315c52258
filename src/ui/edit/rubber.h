// ui/edit/rubber.h - rubber bands of drawing and the marker of the selected point, as overlays.
//
// P is a row of Tab_Pt, To a place on the canvas.
#pragma once

#include "ui/canvas/view.h"

/// Ln1, or Ln2, from a point: solid red, shown.
void Rubber_1(Long P, Pic_Px To);
void Rubber_2(Long P, Pic_Px To);
/// Ln1, dashed.
void Rubber_Dot(Long P, Pic_Px To);
/// The circle round a point, shown.
void Mark_Point(Long P);

void Rubbers_Hide();
void Mark_Hide();

/// The bands of a point being moved: from both its neighbours, or from the one that it has.
void Rubber_Neighbours(Pic_Px To);

/// After a redraw: what is shown of these stands where the view has them now.
void Rubbers_Follow_View();
