// shapes/poly/poly_cut.h - polygons and segments cut along the lines of a grid.
//
// Grid lines are taken in map pixels, from the corners of the project's work grid. A point
// within the tolerance of a line is on it; it is not moved.
#pragma once

#include "geometry/segments.h"
#include "shapes/poly/work_lists.h"

/// Where a segment meets a grid line. With Meet::Miss At has no use; with Meet::End the line
/// runs through an end, which is At.
using Seg_Cut = Seg_Meet;
Seg_Cut Seg_Cut_Horiz(Pix P1, Pix P2, Double Line_Y, Double Tol);
Seg_Cut Seg_Cut_Vert(Pix P1, Pix P2, Double Line_X, Double Tol);

/// Replaces the polygons of Tab_WPoly by pieces that lie in one cell each, first along all
/// parallels, then along all meridians; Mode_VTP2 is the Area grid, any other the Cell grid. Pieces
/// keep their polygon's place in the list and its values. A polygon that a line would cut more
/// than twice ends the cutting with a message box: the lists are then as after the line before.
void Poly_Cut_Cells(Int Mode);

/// Where pieces go as they are made. Begin may come again: all that was taken before then counts
/// for nothing.
struct Piece_Sink {
    virtual void Begin() = 0;
    virtual void Take(const WPoly& Like, std::span<const Pix> Points) = 0;

protected:
    ~Piece_Sink() = default;
};
/// The same into a sink; the polygons stay in Tab_WPoly.
void Poly_Cut_Cells(Int Mode, Piece_Sink& To);
