// shapes/coast/coast_trim.cpp - the first and the last point of a coastline on an edge.
#include "shapes/coast/coast_trim.h"

#include "shapes/coast/coast_loc.h"

namespace {

Cell_Pos Cell_Of_Segment(Pix A, Pix B) {
    return LatLon_To_Cell(Pixel_To_LatLon(Middle_Of(A, B)));
}

bool Is_On_Edge(Pix P, Pix Next) {
    return On_Edge(Pixel_Loc_In_Cell(P, Cell_Of_Segment(P, Next)));
}

bool Is_In_One_Cell(std::span<const Pix> Line) {
    const Cell_Pos C = Cell_Of_Segment(Line[0], Line[1]);
    for (std::size_t I = 1; I + 1 < Line.size(); ++I)
        if (Cell_Of_Segment(Line[I], Line[I + 1]) != C) return false;
    return true;
}

bool Ends_On_Edge(std::span<const Pix> Line, const Cell_Pos& C) {
    return On_Edge(Pixel_Loc_In_Cell(Line.front(), C)) &&
           On_Edge(Pixel_Loc_In_Cell(Line.back(), C));
}

}  // namespace

Coast_Rest Coast_Trim(std::span<const Pix> Line) {
    const std::size_t Last = Line.size() - 1;
    std::size_t Start = 0, End = Last;
    while (Start < Last && !Is_On_Edge(Line[Start], Line[Start + 1])) ++Start;
    while (End > 0 && !Is_On_Edge(Line[End], Line[End - 1])) --End;
    if (Start == Last || End == 0) return {.Line = {}, .Failed = !Is_In_One_Cell(Line)};
    if (End <= Start) return {};
    Line = Line.subspan(Start, End - Start + 1);
    if (Line.size() >= 3 && Is_In_One_Cell(Line) &&
        !Ends_On_Edge(Line, Cell_Of_Segment(Line[0], Line[1])))
        return {};
    return {.Line = Line};
}
