// shapes/poly/work_lists.cpp - the output of a pass, and the end of an emitter's run.
#include "shapes/poly/work_lists.h"

#include <utility>

void NPoly_Append(const WPoly& Like, std::span<const Pix> Points) {
    WPoly W = Like;
    W.First = Nb_NPt + 1;
    const std::span<WPt> To = Tab_NPt.Append_Rows(Points.size());
    for (std::size_t I = 0; I < To.size(); ++I) To[I] = {.X = Points[I].X, .Y = Points[I].Y};
    W.Last = Nb_NPt;
    W.Nb = static_cast<Long>(Points.size());
    Tab_NPoly.Append(W);
}

void WPoly_Commit() {
    std::swap(Tab_WPoly, Tab_NPoly);
    std::swap(Tab_WPt, Tab_NPt);
    Tab_NPoly.Dimension(0);
    Tab_NPt.Dimension(0);
}

void Work_Lists_Reset() {
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
    Tab_CPoly.Reset();
    Tab_CPt.Reset();
    Tab_CCoast.Reset();
    Tab_CCoastPt.Reset();
    Has_Imbric = 0;
    Has_Auto = 0;
    Err_PixX = 0;
    Err_PixY = 0;
}
