// gen/coast_generate.cpp - the steps from drawn coastlines to their surfaces.
#include "gen/coast_generate.h"

#include "core/attr_kinds.h"
#include "core/host.h"
#include "shapes/coast/coast_close.h"
#include "shapes/coast/coast_cut.h"
#include "shapes/coast/coast_polys.h"
#include "shapes/coast/coast_to_cells.h"
#include "shapes/line/line_collect.h"
#include "shapes/poly/poly_collect.h"

namespace {

void Make_Surfaces() {
    Line_Collect({.Takes = Is_Coast, .Turns = true});
    if (Poly_Self_Cross(false) != 0) {
        Self_Cross_Show();
        return;
    }
    if (Nb_WPoly > 0) Coast_Cut_Cells();
    if (Nb_WPoly > 0) Coast_Close();
    if (Nb_WPoly == 0) return;
    Coast_Polys();
    Coast_To_Cells();
}

}  // namespace

bool Any_Coast() {
    for (Long I = First_Obj; I <= Nb_Obj; ++I)
        if (Is_Coast(Tab_Obj[I].Attr) && Tab_Obj[I].Nb_Pts >= 2) return true;
    return false;
}

void Coast_Generate() {
    Tab_CCoast.Reset();
    Tab_CCoastPt.Reset();
    if (Nb_Obj < First_Obj) return;
    The_Host().Set_Caption("LCompile", "Coastlines");
    The_Host().Refresh();
    Make_Surfaces();
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
}
