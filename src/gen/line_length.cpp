// gen/line_length.cpp - piece after piece off a long line.
#include "gen/line_length.h"

#include <algorithm>

#include "core/attr_kinds.h"
#include "shapes/line/line_cut.h"

namespace {

constexpr Long Longest = 279;

void Divide(Long Poly) {
    const WPoly W = Tab_WPoly[Poly];
    const Long Step = W.Nb % Longest == 1 ? Longest - 1 : Longest;
    // The first piece shares no point with one before it.
    for (Long Start = W.First - 1, End = 0; End < W.Last; Start = End) {
        End = std::min(Start + Step, W.Last);
        if (End != W.Last) Tab_WPt[End].Tag = Tag_Cut;
        Line_Emit_Piece(Poly, std::max(Start, W.First), End);
    }
}

// Shores of polygons are not divided.
bool Is_Too_Long(const WPoly& W) {
    return Is_Open_Line(*W.Attr) && W.Nb > Longest;
}

}  // namespace

void Line_Limit_Length() {
    if (std::ranges::none_of(Tab_WPoly.Rows(), Is_Too_Long)) return;
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    for (Long I = 1; I <= Nb_WPoly; ++I) {
        const WPoly& W = Tab_WPoly[I];
        if (Is_Too_Long(W))
            Divide(I);
        else
            Line_Emit_Piece(I, W.First, W.Last);
    }
    WPoly_Commit();
}
