// shapes/poly/poly_prepare.cpp - the steps from the drawn polygons to their pieces.
#include "shapes/poly/poly_prepare.h"

#include "core/messages.h"

namespace {

constexpr Long Piece_Limit = 60;
constexpr Long Piece_Limit_Third = 24;

void Refuse() {
    Has_Auto = 0;
    Has_Imbric = 0;
}

}  // namespace

void Poly_Prepare(Int Mode) {
    Poly_Collect(Mode);
    if (Poly_Self_Cross() != 0) {
        Self_Cross_Show();
        return Refuse();
    }
    Has_Imbric = 0;
    Imbric_Order();
    if (Auto_Order() != 0) {
        Msg_Show(122);
        return Refuse();
    }
    if (Has_Imbric == 0 && Has_Auto == 0) return;
    if (Has_Auto != 0) Auto_Tree();
    Poly_Split_Max(Mode == Mode_VTP1 ? Piece_Limit_Third : Piece_Limit);
}
