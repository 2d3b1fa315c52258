// shapes/coast/coast_loc.h - points of a coastline on the scale of their Cells.
#pragma once

#include "geo/calibration.h"
#include "grid/terrain_grid.h"

/// A point in or on a Cell, and where it lies on the map by its whole coordinates there.
struct CoastLoc {
    Cell_Pos Cell;
    Loc_Cell Loc;
    Pix At;  // map pixels
};

/// The place of a point of a Cell, in map pixels. The Cell may lie beyond the globe's edge.
Pix Cell_Loc_To_Pixel(const Cell_Pos& C, const Loc_Cell& L);

/// The point of the Cell of Segment_Middle that P comes to lie on.
CoastLoc Coast_Snap(Pix P, Pix Segment_Middle);

inline bool On_Edge(Int Loc) {
    return Loc == 0 || Loc == Loc_Cell_Span;
}
inline bool On_Edge(const Loc_Cell& L) {
    return On_Edge(L.LocX) || On_Edge(L.LocY);
}

/// Map pixels compared with a tolerance for the rounding of Cell_Loc_To_Pixel: -1 when A is less
/// than B, 1 when it is greater, else 0. The tolerance is the figure of half a unit of a Cell in
/// degrees, taken as pixels, and so far below any unit on a map that can be drawn on.
inline constexpr Double Coast_TolX = Cell_StepLon / 512, Coast_TolY = Cell_StepLat / 512;
inline int Cmp_X(Double A, Double B) {
    return A < B - Coast_TolX ? -1 : A > B + Coast_TolX ? 1 : 0;
}
inline int Cmp_Y(Double A, Double B) {
    return A < B - Coast_TolY ? -1 : A > B + Coast_TolY ? 1 : 0;
}
inline bool Same_Place(Pix A, Pix B) {
    return Cmp_X(A.X, B.X) == 0 && Cmp_Y(A.Y, B.Y) == 0;
}

inline Pix Middle_Of(Pix A, Pix B) {
    return {(A.X + B.X) / 2, (A.Y + B.Y) / 2};
}
