// ui/edit/pic_mouse.cpp - what the mouse does on the canvas.
#include <optional>

#include "core/host.h"
#include "core/model.h"
#include "core/program.h"
#include "core/view_calls.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace {

// Where the button that drags the map went down or was last seen: the middle one, or the left one
// with the space bar held.
struct Map_Drag {
    Int Button;
    Pic_Px From;
};
std::optional<Map_Drag> Drag_From;

bool May_Drag(const Mouse_Event& E) {
    return E.Button == Mouse_Middle || (E.Button == Mouse_Left && (E.Shift & Space_Key) != 0);
}
const bool Drag_Is_Reset = At_Reset([] { Drag_From.reset(); });

// True when the map is being dragged: the event is no business of the mode's then.
bool Drag(const Mouse_Event& E) {
    const Pic_Px At{E.X, E.Y};
    if (E.What == Mouse_Event::Kind::Press && May_Drag(E)) {
        Drag_From = {E.Button, At};
        return true;
    }
    if (!Drag_From) return false;
    if (E.What == Mouse_Event::Kind::Move && (E.Button & Drag_From->Button) != 0) {
        View_Drag(At.X - Drag_From->From.X, At.Y - Drag_From->From.Y);
        Drag_From->From = At;
        return true;
    }
    const Int Button = Drag_From->Button;
    Drag_From.reset();
    return E.Button == Button;
}

using Mouse_Call = void (*Mode_Row::*)(const Mouse_Event&);

void Tell_Mode(Mouse_Call Call, const Mouse_Event& E) {
    const Mode_Row* Row = Mode_Now();
    if (Row != nullptr && Row->*Call != nullptr) (Row->*Call)(E);
}

// Only the left button's counts as one. A button that drags does so, however quickly it follows.
Mouse_Event As_The_Mode_Sees_It(Mouse_Event E) {
    if (E.What == Mouse_Event::Kind::Double_Click && May_Drag(E)) E.What = Mouse_Event::Kind::Press;
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
    if (E.What == Mouse_Event::Kind::Wheel)
        return (E.Shift & Shift_Key) != 0 ? View_Wheel_Sideways(E.Steps) : View_Wheel(E.Steps, At);
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
