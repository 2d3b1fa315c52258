// reference/lists.cpp - the way into the output lists, and from there to the next pass.
#include "reference/lists.h"

namespace reference {

void Reset() {
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
    Tab_CPoly.Reset();
    Tab_CPt.Reset();
    Has_Imbric = Has_Auto = 0;
    Err_PixX = Err_PixY = 0;
    Messages.clear();
    Stages.clear();
    Counter = 0;
}

void NPoly_Append(const WPoly& Like, const std::vector<WPt>& Points) {
    WPoly Piece = Like;
    Piece.First = Nb_NPt + 1;
    for (const WPt& P : Points) Tab_NPt.Append(P);
    Piece.Last = Nb_NPt;
    Piece.Nb = Piece.Last - Piece.First + 1;
    Tab_NPoly.Append(Piece);
}

void WPoly_Commit() {
    Tab_WPoly = Tab_NPoly;
    Tab_WPt = Tab_NPt;
}

}  // namespace reference
