// shapes/coast/coast_loc.cpp - from the map to a Cell's scale and back.
#include "shapes/coast/coast_loc.h"

Pix Cell_Loc_To_Pixel(const Cell_Pos& C, const Loc_Cell& L) {
    const Double Lat = 90 - (C.AreaLat * Area_StepLat + C.CellLat * Cell_StepLat +
                             L.LocY * Cell_StepLat / Loc_Cell_Span);
    const Double Lon = C.AreaLon * Area_StepLon + C.CellLon * Cell_StepLon +
                       L.LocX * Cell_StepLon / Loc_Cell_Span - 180;
    return LatLon_To_Pixel({Lat, Lon});
}

CoastLoc Coast_Snap(Pix P, Pix Segment_Middle) {
    CoastLoc C;
    C.Cell = LatLon_To_Cell(Pixel_To_LatLon(Segment_Middle));
    C.Loc = Pixel_Loc_In_Cell(P, C.Cell);
    C.At = Cell_Loc_To_Pixel(C.Cell, C.Loc);
    return C;
}
