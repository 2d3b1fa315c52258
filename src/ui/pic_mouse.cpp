// ui/pic_mouse.cpp - what the mouse does on the canvas.
#include <optional>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "ui/modes.h"
#include "ui/view.h"

namespace {

// Where the middle button went down or was last seen while it drags the map.
std::optional<Pic_Px> Drag_From;
const bool Drag_Is_Reset = At_Reset([] { Drag_From.reset(); });

bool In_Work_Grid() {
    return XGridNW <= Mouse_Map_X && Mouse_Map_X <= XGridSE && YGridNW <= Mouse_Map_Y &&
           Mouse_Map_Y <= YGridSE;
}

// Flag is set before the dialog and cleared by its Ok.
void Square_Dialog(const char* Form, Int& Flag) {
    Flag = 1;
    The_Host().Run_Form(Form);
    if (Flag == 0) View_Redraw();
}

// True when the map is being dragged: the event is no business of the mode's then.
bool Drag(const Mouse_Event& E) {
    const Pic_Px At{E.X, E.Y};
    if (E.What == Mouse_Event::Kind::Press && E.Button == Mouse_Middle) {
        Drag_From = At;
        return true;
    }
    if (!Drag_From) return false;
    if (E.What == Mouse_Event::Kind::Move && (E.Button & Mouse_Middle) != 0) {
        View_Drag(At.X - Drag_From->X, At.Y - Drag_From->Y);
        Drag_From = At;
        return true;
    }
    Drag_From.reset();
    return E.Button == Mouse_Middle;
}

void Tell_Mode(const Mouse_Event& E) {
    const Mode_Calls& C = The_Mode_Calls;
    if (Mode_Route != 0 && C.Route_Mouse) C.Route_Mouse(E);
    if (Mode_Ima != 0 && C.Ima_Mouse) C.Ima_Mouse(E);
    if (Mode_PtGrid != 0 && C.PtGrid_Mouse) C.PtGrid_Mouse(E);
}

}  // namespace

void Pic_Double_Click() {
    if (Mode_Ima != 0) return Call(The_Mode_Calls.Ima_Double_Click);
    if (Mode_Excl != 0) return Square_Dialog("Frm_Excl", Excl_Cancelled);
    if (Mode_Route == 0 && !In_Work_Grid()) return;
    if (Mode_Area != 0) return Square_Dialog("Frm_LOD", Area_Cancelled);
    if (Mode_Cell != 0) return Square_Dialog("Frm_LOD8", Area_Cancelled);
    if (Mode_LC != 0) return Square_Dialog("Frm_LC", LC_Cancelled);
    if (Mode_WC != 0) return Square_Dialog("Frm_WC", WC_Cancelled);
    if (Mode_Route != 0) Call(The_Mode_Calls.Route_Double_Click);
}

void Pic_Mouse(const Mouse_Event& E) {
    if (Edit_On == 0) return;
    const Pic_Px At{E.X, E.Y};
    if (E.What == Mouse_Event::Kind::Wheel) return View_Wheel(E.Steps, At);
    if (Drag(E)) return;
    switch (E.What) {
        case Mouse_Event::Kind::Move:
            Mouse_Read_Out(At);
            return Tell_Mode(E);
        case Mouse_Event::Kind::Press:
            Mouse_Click_At(At);
            return Tell_Mode(E);
        case Mouse_Event::Kind::Double_Click:
            return Pic_Double_Click();
        case Mouse_Event::Kind::Release:
            return Tell_Mode(E);
        case Mouse_Event::Kind::Wheel:
            return;
    }
}
