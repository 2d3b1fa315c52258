// shapes/coast/coast_close.cpp - snapping, and the two ways to close a line.
#include "shapes/coast/coast_close.h"

#include <algorithm>
#include <optional>
#include <vector>

#include "core/messages.h"
#include "core/work.h"
#include "shapes/coast/coast_frame.h"
#include "shapes/coast/coast_loc.h"
#include "shapes/poly/work_lists.h"

namespace {

// Each point goes to the Cell of the segment behind it, the last one to that before it. The last
// segment's start has moved by then.
void Snap(std::span<const WPt> Points, std::vector<CoastLoc>& Line) {
    Line.clear();
    for (std::size_t I = 0; I + 1 < Points.size(); ++I) {
        const Pix P = To_Pix(Points[I]);
        Line.push_back(Coast_Snap(P, Middle_Of(P, To_Pix(Points[I + 1]))));
    }
    const Pix Last = To_Pix(Points.back());
    Line.push_back(Coast_Snap(Last, Middle_Of(Line.back().At, Last)));
}

// Without the ends that coincide with their neighbours; an end has to show where the line goes.
std::span<const CoastLoc> Without_Repeated_Ends(std::span<const CoastLoc> Line) {
    while (Line.size() >= 2 && Same_Place(Line[0].At, Line[1].At)) Line = Line.subspan(1);
    while (Line.size() >= 2 && Same_Place(Line[Line.size() - 2].At, Line.back().At))
        Line = Line.first(Line.size() - 1);
    return Line;
}

// Whether the ends lie on one grid line and all else lies right of the way back from the last
// point to the first, so that the outline runs clockwise.
bool Coast_Ends_Aligned(std::span<const CoastLoc> Line) {
    if (Line.size() < 3) return false;
    const Pix A = Line.front().At, B = Line.back().At;
    const auto Inner = Line.subspan(1, Line.size() - 2);
    const int Row = Cmp_Y(A.Y, B.Y), Col = Cmp_X(A.X, B.X);
    if (Row == 0) {
        const int Side = Col == -1 ? -1 : 1;
        return std::ranges::all_of(Inner,
                                   [&](const CoastLoc& P) { return Cmp_Y(P.At.Y, A.Y) == Side; });
    }
    if (Col != 0) return false;
    return std::ranges::all_of(Inner,
                               [&](const CoastLoc& P) { return Cmp_X(P.At.X, A.X) == -Row; });
}

// The points of the closed outline; nothing when there is no way to close it.
std::optional<std::vector<Pix>> Closed(std::span<const CoastLoc> Line) {
    std::vector<Pix> Outline;
    Outline.reserve(Line.size());
    for (const CoastLoc& P : Line) Outline.push_back(P.At);
    if (Coast_Ends_Aligned(Line)) return Outline;
    if (!On_Edge(Line.front().Loc) || !On_Edge(Line.back().Loc)) return std::nullopt;
    const auto Way = Coast_Way_Back(Coast_Frame_Of(Line), Line);
    if (!Way) return std::nullopt;
    Outline.insert(Outline.end(), Way->begin(), Way->end());
    return Outline;
}

}  // namespace

void Coast_Close() {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    const std::span<const WPt> All = Tab_WPt.Rows();
    std::vector<CoastLoc> Line;
    bool Failed = false;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Work_Look();
        Snap(All.subspan(static_cast<std::size_t>(W.First - 1), static_cast<std::size_t>(W.Nb)),
             Line);
        const std::span<const CoastLoc> Rest = Without_Repeated_Ends(Line);
        if (Rest.size() < 2) continue;
        const auto Outline = Closed(Rest);
        Failed = !Outline;
        if (Failed) break;
        NPoly_Append(W, *Outline);
    }
    WPoly_Commit();
    if (!Failed) return;
    Msg_Show(132);
    Tab_WPoly.Dimension(0);
    Tab_WPt.Dimension(0);
}
