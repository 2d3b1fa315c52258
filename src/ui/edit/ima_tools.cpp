// ui/edit/ima_tools.cpp - the tools of Mode_Ima: the selection of a texture and its lines.
#include "ui/edit/ima_tools.h"

#include "core/host.h"
#include "core/model.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

void Place(Overlay_Line& L, const Line_Px& At) {
    L.At = At;
    L.Visible = true;
}

// Nothing is selected any longer, and what the selection allowed is out of reach.
void Drop_Selection() {
    Ima_Leave();
    The_Host().Set_Enabled("Cmd_Sel_Crb_Ima", false);
}

}  // namespace

void Ima_Clear() {
    The_Ima = {};
}

void Ima_Lines_Hide() {
    Overlay_Items& O = The_Overlay;
    for (Overlay_Line* L : {&O.LnHIma1, &O.LnHIma2, &O.LnVIma1, &O.LnVIma2}) L->Visible = false;
    The_Surface().Overlay_Changed();
}

void Ima_Leave() {
    Ima_Lines_Hide();
    Ima_Clear();
}

void Ima_Lines_Show(const Rect_Pix& On_Map) {
    const Rect_Pix R = Ima_On_Canvas(On_Map);
    const Long Left = Round_Lng(R.Left), Top = Round_Lng(R.Top);
    const Long Right = Round_Lng(R.Right), Bottom = Round_Lng(R.Bottom);
    Overlay_Items& O = The_Overlay;
    Place(O.LnHIma1, {Left, Top, Right, Top});
    Place(O.LnHIma2, {Left, Bottom, Right, Bottom});
    Place(O.LnVIma1, {Left, Top, Left, Bottom});
    Place(O.LnVIma2, {Right, Top, Right, Bottom});
    The_Surface().Overlay_Changed();
}

Rect_Pix Ima_Rect(Long I) {
    const Ima& M = Tab_Ima[I];
    return {M.X1, M.Y1, M.X2, M.Y2};
}

Rect_Pix Ima_On_Canvas(const Rect_Pix& On_Map) {
    const Pic_Px NW = Map_To_Pic({On_Map.Left, On_Map.Top});
    const Pic_Px SE = Map_To_Pic({On_Map.Right, On_Map.Bottom});
    return {NW.X, NW.Y, SE.X, SE.Y};
}

void Cmd_New_Ima() {
    if (Mode_Ima == 0) return;
    Drop_Selection();
    Ima_Dialog = Ima_Dialogs::Create;
    View_Redraw();
}

void Cmd_Sel_Ima() {
    if (Mode_Ima == 0) return;
    Drop_Selection();
    Ima_Pick = 1;
    Canvas_Pointer(Pointer_Shape::Cross);
    View_Redraw();
}

void Cmd_Sel_Crb_Ima() {
    if (Mode_Ima == 0 || Ima_Selected == 0) return;
    Ima_Poly = 0;
    Ima_Poly_Selected = 0;
    Ima_Pick_Poly = Ima_Pick = 1;
    View_Redraw();
}
