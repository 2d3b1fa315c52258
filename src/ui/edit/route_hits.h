// ui/edit/route_hits.h - what of the drawn objects lies nearest to a place on the canvas.
//
// There is no tolerance: the nearest thing wins however far away it is, and of equals the first.
// Rows are those of Tab_Obj and Tab_Pt; 0 says that there is none.
#pragma once

#include "ui/canvas/view.h"

/// The object with the nearest vertex.
Long Nearest_Object(Pic_Px At);
/// The nearest vertex of object I.
Long Nearest_Point(Long I, Pic_Px At);
/// The end of object I that is nearer: the first when strictly so, else the last.
Long Nearest_End(Long I, Pic_Px At);

struct Segment_Hit {
    Long A = 0, B = 0;     // its points
    bool Closing = false;  // from the first point to the last, which no line joins
};

/// The nearest segment of object I, which has two points or more; the closing one comes last.
Segment_Hit Nearest_Segment(Long I, Pic_Px At);

/// From (X, Y) to the segment between points A and B, in canvas pixels; -1 when the foot of the
/// perpendicular lies outside it.
Double Seg_Distance(Long A, Long B, Double X, Double Y);
/// The mean of the distances to both ends.
Double Seg_Mean_Distance(Long A, Long B, Double X, Double Y);
