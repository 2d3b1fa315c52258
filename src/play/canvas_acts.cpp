// play/canvas_acts.cpp - what a user does with the mouse on a canvas.
#include "play/player.h"
#include "ui/form/form_events.h"

namespace {

Pic_Px Place_Of(const Act& A) {
    Pic_Px At;
    Script_Number(A.Words[0], At.X);
    Script_Number(A.Words[1], At.Y);
    return At;
}

Int Button_Of(const std::string& Word) {
    if (Word == "left") return Mouse_Left;
    if (Word == "right") return Mouse_Right;
    return Word == "middle" ? Mouse_Middle : Int{0};
}

Int Modifier_Of(const std::string& Word) {
    if (Word == "shift") return Shift_Key;
    if (Word == "ctrl") return Ctrl_Key;
    if (Word == "space") return Space_Key;
    return Word == "alt" ? Alt_Key : Int{0};
}

Mouse_Event Event_At(Mouse_Event::Kind What, Int Button, Pic_Px At) {
    return {.What = What, .Button = Button, .X = At.X, .Y = At.Y};
}

}  // namespace

std::string Canvas_Of(const Form& F) {
    for (const Control& C : F.Controls())
        if (C.Kind == Control_Kind::Canvas && F.Is_Shown(C.Name)) return C.Name;
    return {};
}

// A button that went down stays so until it is let go, whatever opens in between.
void Player::Send(Open_Form_State& To, const Mouse_Event& E) {
    if (Over_) return;
    if (E.What == Mouse_Event::Kind::Press || E.What == Mouse_Event::Kind::Double_Click)
        To.Buttons = static_cast<Int>(To.Buttons | E.Button);
    if (E.What == Mouse_Event::Kind::Release) To.Buttons = static_cast<Int>(To.Buttons & ~E.Button);
    Form_Mouse(*To.Shown, Canvas_Of(*To.Shown), E);
}

// The form whose canvas the mouse is on now; null when there is none.
Open_Form_State* Player::Move_To(const Act& A) {
    Open_Form_State* To = On_Canvas();
    if (To == nullptr) {
        Fail("there is no canvas in front");
        return nullptr;
    }
    if (!In_Reach(*To->Shown, Canvas_Of(*To->Shown))) return nullptr;
    const Pic_Px At = Place_Of(A);
    if (To->Mouse == At) return To;
    To->Mouse = At;
    Send(*To, Event_At(Mouse_Event::Kind::Move, To->Buttons, At));
    return To;
}

// The same with the focus on it, as a press brings it; null as well when a field keeps it.
Open_Form_State* Player::Go_To(const Act& A) {
    Open_Form_State* To = Move_To(A);
    const bool Has_Gone =
        To != nullptr && !Over_ && Form_Enter_Control(*To->Shown, Canvas_Of(*To->Shown));
    return Has_Gone ? To : nullptr;
}

void Player::Press(const Act& A) {
    Open_Form_State* To = Go_To(A);
    if (To == nullptr) return;
    Mouse_Event E = Event_At(Mouse_Event::Kind::Press, Mouse_Left, Place_Of(A));
    for (std::size_t I = 2; I < A.Words.size(); ++I) {
        if (const Int Button = Button_Of(A.Words[I]); Button != 0) E.Button = Button;
        E.Shift = static_cast<Int>(E.Shift + Modifier_Of(A.Words[I]));
    }
    Send(*To, E);
}

void Player::Release(const Act& A) {
    Open_Form_State* To = Move_To(A);
    if (To == nullptr) return;
    const Int Button = A.Words.size() > 2 ? Button_Of(A.Words[2]) : Mouse_Left;
    Send(*To, Event_At(Mouse_Event::Kind::Release, Button, Place_Of(A)));
}

void Player::Double_Click_At(const Act& A) {
    using Kind = Mouse_Event::Kind;
    Open_Form_State* To = Go_To(A);
    if (To == nullptr) return;
    for (const Kind What : {Kind::Press, Kind::Release, Kind::Double_Click, Kind::Release})
        Send(*To, Event_At(What, Mouse_Left, Place_Of(A)));
}

void Player::Wheel(const Act& A) {
    Open_Form_State* To = Move_To(A);
    if (To == nullptr) return;
    Long Steps = 0;
    Script_Whole(A.Words[2], Steps);
    Mouse_Event E = Event_At(Mouse_Event::Kind::Wheel, 0, Place_Of(A));
    E.Steps = static_cast<Int>(Steps);
    if (A.Words.size() > 3) E.Shift = Shift_Key;
    Send(*To, E);
}
