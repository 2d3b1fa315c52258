// shapes/coast/coast_cut.cpp - each segment along its own rows and columns.
//
// A crossing lies on its grid line exactly, so that later lines can cross only the part of the
// segment behind it. Each segment is cut along all its lines at once, with the same result as if
// each grid line were taken along all coastlines in turn.
#include "shapes/coast/coast_cut.h"

#include <algorithm>

#include "core/messages.h"
#include "shapes/coast/coast_trim.h"
#include "shapes/poly/poly_cut.h"
#include "shapes/poly/work_lists.h"

namespace {

struct Rows {
    static Double Across(Pix P) { return P.Y; }
    static Seg_Cut Cut(Pix A, Pix B, Double Line, Double Tol) {
        return Seg_Cut_Horiz(A, B, Line, Tol);
    }
};

struct Columns {
    static Double Across(Pix P) { return P.X; }
    static Seg_Cut Cut(Pix A, Pix B, Double Line, Double Tol) {
        return Seg_Cut_Vert(A, B, Line, Tol);
    }
};

// The crossings of a segment from A to B, both left out, in their order along it.
template <typename Axis>
void Add_Crossings(std::span<const Double> Lines, Double Tol, Pix A, Pix B, std::vector<Pix>& Out) {
    const auto First_New = static_cast<std::ptrdiff_t>(Out.size());
    const Double From = Axis::Across(A), To = Axis::Across(B);
    const Line_Range Range = Lines_Between(Lines, std::min(From, To), std::max(From, To));
    for (std::size_t K = Range.First; K < Range.End; ++K) {
        const Seg_Cut C = Axis::Cut(A, B, Lines[K], Tol);
        if (C.Code != Meet::Cross) continue;
        Out.push_back(C.At);
        (From < To ? A : B) = C.At;
    }
    if (From > To) std::reverse(Out.begin() + First_New, Out.end());
}

template <typename Axis>
void Cut_Along(std::span<const Double> Lines, Double Tol, std::vector<Pix>& Line) {
    std::vector<Pix> Out{Line[0]};
    Out.reserve(Line.size());
    for (std::size_t I = 1; I < Line.size(); ++I) {
        Add_Crossings<Axis>(Lines, Tol, Line[I - 1], Line[I], Out);
        Out.push_back(Line[I]);
    }
    Line.swap(Out);
}

}  // namespace

void Coast_Crossings(const Grid_Lines& Grid, std::vector<Pix>& Line) {
    Cut_Along<Rows>(Grid.Y, Grid.TolY, Line);
    Cut_Along<Columns>(Grid.X, Grid.TolX, Line);
}

void Coast_Cut_Cells() {
    const Grid_Lines Grid = Grid_Lines_Of(Coasts_By_Cell);
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    std::vector<Pix> Line;
    bool Failed = false;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Line.clear();
        for (Long I = W.First; I <= W.Last; ++I) Line.push_back(To_Pix(Tab_WPt[I]));
        Coast_Crossings(Grid, Line);
        const Coast_Rest Rest = Coast_Trim(Line);
        if (!Rest.Line.empty()) NPoly_Append(W, Rest.Line);
        Failed = Rest.Failed;
        if (Failed) break;
    }
    WPoly_Commit();
    if (!Failed) return;
    Msg_Show(132);
    Tab_WPoly.Dimension(0);
    Tab_WPt.Dimension(0);
}
