// shapes/coast/coast_polys.cpp - from closed coastlines to pieces.
#include "shapes/coast/coast_polys.h"

#include <algorithm>
#include <vector>

#include "shapes/poly/drawn_line.h"
#include "shapes/poly/poly_collect.h"
#include "shapes/poly/poly_split.h"
#include "shapes/poly/work_lists.h"

namespace {

constexpr Long Piece_Limit = 60;

// False when fewer than 2 points are left.
bool Clean(std::vector<Pix>& Outline) {
    Drop_Repeats(Outline);
    if (Outline.size() < 2) return false;
    if (Outline.size() >= 3) Drop_Straight(Outline);
    if (Sens_3Pts(Outline.back(), Outline[0], Outline[1]) == 0) Outline.erase(Outline.begin());
    return Outline.size() >= 2;
}

}  // namespace

void Coast_Polys() {
    Tab_NPoly.Dimension(Nb_WPoly);
    Tab_NPt.Dimension(Nb_WPt);
    std::vector<Pix> Outline;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        Outline.clear();
        for (Long I = W.First; I <= W.Last; ++I) Outline.push_back(To_Pix(Tab_WPt[I]));
        if (!Clean(Outline)) continue;
        if (Outline.size() > 2 && Poly_Orientation(Outline) == 0)
            std::reverse(Outline.begin(), Outline.end());
        NPoly_Append(W, Outline);
    }
    WPoly_Commit();
    Poly_Split_Max(Piece_Limit);
}
