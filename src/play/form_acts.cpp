// play/form_acts.cpp - what a user does to the form in front.
#include "play/player.h"
#include "play/script_path.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"

namespace {

bool Is_Field(const Control& C) {
    return C.Kind == Control_Kind::Text || C.Kind == Control_Kind::Number;
}

bool Can_Be_Clicked(const Control& C) {
    switch (C.Kind) {
        case Control_Kind::Button:
        case Control_Kind::Check:
        case Control_Kind::Menu_Item:
        case Control_Kind::Text:
        case Control_Kind::Number:
        case Control_Kind::Image:
        case Control_Kind::Label:
            return true;
        default:
            return false;
    }
}

bool Can_Be_Double_Clicked(const Control& C) {
    switch (C.Kind) {
        case Control_Kind::Text:
        case Control_Kind::Number:
        case Control_Kind::List:
        case Control_Kind::Image:
        case Control_Kind::Label:
            return true;
        default:
            return false;
    }
}

// Whether a control or what is round it is hidden, whatever page is in front.
bool Is_Hidden(const Form& F, const std::string& Name) {
    return !Name.empty() && (!F[Name].Visible || Is_Hidden(F, F.Parent(Name)));
}

// The key that a menu item has as its shortcut.
const Control* With_Shortcut(const Form& F, Key_Event K) {
    for (const Control& C : F.Controls()) {
        Key_Event Its;
        if (C.Shortcut.empty() || !Script_Key(C.Shortcut, Its)) continue;
        if (Its.Code == K.Code && Its.Shift == K.Shift) return &C;
    }
    return nullptr;
}

}  // namespace

// False when the control can't be used: the play is over then, or a field refused to be left.
bool Player::In_Reach(Form& F, const std::string& Name) {
    const std::string Where = Name + " of " + F.Name();
    if (!F.Has(Name) || !F.Is_Shown(Name)) {
        Fail("there is no " + Where);
        return false;
    }
    if (!F.Is_Enabled(Name))
        Fail(Where + " is disabled");
    else if (Form_Bring_To_Front(F, Name) ? !F.Is_Visible(Name) : Is_Hidden(F, Name))
        Fail(Where + " is hidden");
    else
        return F.Is_Visible(Name);
    return false;
}

void Player::Click(const Act& A) {
    Form& F = *Front().Shown;
    const std::string& Name = A.Words[0];
    if (!In_Reach(F, Name)) return;
    if (!Can_Be_Clicked(F[Name])) return Fail(Name + " is nothing to click");
    Form_Click(F, Name);
}

void Player::Choose(const Act& A) {
    Form& F = *Front().Shown;
    const std::string& Name = A.Words[0];
    Long I = 0;
    Script_Whole(A.Words[1], I);
    if (!In_Reach(F, Name)) return;
    const Control& C = F[Name];
    if (C.Kind == Control_Kind::Scroll_Bar && 0 <= I && I <= C.Max)
        Form_Scroll(F, Name, I);
    else if (Form_Can_Choose(F, Name, I))
        Form_Choose(F, Name, I);
    else
        Fail(Name + " has no " + A.Words[1] + " to choose");
}

void Player::Type(const Act& A) {
    Form& F = *Front().Shown;
    const std::string& Name = A.Words[0];
    if (!In_Reach(F, Name)) return;
    if (!Is_Field(F[Name]) || F[Name].Read_Only) return Fail(Name + " is nothing to type into");
    Form_Type(F, Name, A.Words[1]);
}

void Player::Focus(const Act& A) {
    Form& F = *Front().Shown;
    const std::string& Name = A.Words[0];
    if (!In_Reach(F, Name)) return;
    if (!Form_Takes_Focus(F[Name])) return Fail(Name + " is nothing to go into");
    Form_Enter_Control(F, Name);
}

void Player::Double_Click(const Act& A) {
    Double X = 0.0;
    if (Script_Number(A.Words[0], X)) return Double_Click_At(A);
    Form& F = *Front().Shown;
    const std::string& Name = A.Words[0];
    if (!In_Reach(F, Name)) return;
    if (!Can_Be_Double_Clicked(F[Name])) return Fail(Name + " is nothing to double-click");
    if (A.Words.size() == 2) {
        Long I = 0;
        Script_Whole(A.Words[1], I);
        if (F[Name].Kind != Control_Kind::List || !Form_Can_Choose(F, Name, I))
            return Fail(Name + " has no row " + A.Words[1]);
        if (!Form_Choose(F, Name, I)) return;
    }
    Form_Double_Click(F, Name);
}

void Player::Press_Key(const Act& A) {
    Form& F = *Front().Shown;
    Key_Event K;
    Script_Key(A.Words[0], K);
    if (const Control* Item = With_Shortcut(F, K)) {
        Form_Click(F, Item->Name);
        return;
    }
    if (K.Code == Key_Tab && K.Shift == 0) {
        Form_Next_Control(F);
        return;
    }
    if (F.Name() == "Frm" && F.Focus() != "Pic") Form_Enter_Control(F, "Pic");
    Form_Key(F, K);
}

void Player::Close_Form() {
    Form& F = *Front().Shown;
    Form_User_Close(F);
}

void Player::Drop(const Act& A) {
    Form& F = *Open_.front().Shown;
    if (Open_.size() > 1) return Fail("a dialog lies above the main form");
    const auto Path = Script_Path(A.Words[0]);
    if (!Path) return Fail("the program cannot write the path " + A.Words[0]);
    if (F.On_Drop) F.On_Drop(*Path);
}

void Player::Tick(const Act& A) {
    Long N = 1;
    if (!A.Words.empty()) Script_Whole(A.Words[0], N);
    for (Long I = 0; I < N && !Over_; ++I) {
        std::vector<Form*> Timed;
        for (const Open_Form_State& O : Open_) Timed.push_back(O.Shown);
        for (const Free_Form& Free : Free_) Timed.push_back(Free.Opened.Shown);
        for (Form* F : Timed)
            if (!Over_ && F->On_Tick && F->Tick_Ms > 0) Form_Tick(*F);
    }
}
