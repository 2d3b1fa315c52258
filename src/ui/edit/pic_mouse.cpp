// ui/edit/pic_mouse.cpp - what the mouse does on the canvas.
#include <optional>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace {

// Where the middle button went down or was last seen while it drags the map.
std::optional<Pic_Px> Drag_From;
const bool Drag_Is_Reset = At_Reset([] { Drag_From.reset(); });

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

using Mouse_Call = void (*Mode_Row::*)(const Mouse_Event&);

void Tell_Mode(Mouse_Call Call, const Mouse_Event& E) {
    const Mode_Row* Row = Mode_Now();
    if (Row != nullptr && Row->*Call != nullptr) (Row->*Call)(E);
}

// Only the left button's counts as one. The middle button drags, however quickly it follows.
Mouse_Event As_The_Mode_Sees_It(Mouse_Event E) {
    if (E.What == Mouse_Event::Kind::Double_Click && E.Button == Mouse_Middle)
        E.What = Mouse_Event::Kind::Press;
    return E;
}

}  // namespace

void Pic_Double_Click() {
    const Mode_Row* Row = Mode_Now();
    if (Row != nullptr && Row->Double_Click != nullptr) Row->Double_Click();
    Hint_Show();
}

void Pic_Mouse(const Mouse_Event& Told) {
    if (Edit_On == 0) return;
    const Mouse_Event E = As_The_Mode_Sees_It(Told);
    const Pic_Px At{E.X, E.Y};
    if (E.What == Mouse_Event::Kind::Wheel) return View_Wheel(E.Steps, At);
    if (Drag(E)) return;
    switch (E.What) {
        case Mouse_Event::Kind::Move:
            Mouse_Read_Out(At);
            return Tell_Mode(&Mode_Row::Move, E);
        case Mouse_Event::Kind::Press:
            Mouse_Click_At(At);
            Tell_Mode(&Mode_Row::Press, E);
            return Hint_Show();
        case Mouse_Event::Kind::Double_Click:
            if (E.Button == Mouse_Left) Pic_Double_Click();
            return;
        case Mouse_Event::Kind::Release:
            return Tell_Mode(&Mode_Row::Release, E);
        case Mouse_Event::Kind::Away:
            return Tell_Mode(&Mode_Row::Away, E);
        case Mouse_Event::Kind::Wheel:
            return;
    }
}
