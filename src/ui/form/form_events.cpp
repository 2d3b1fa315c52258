// ui/form/form_events.cpp - the rules that all controls share.
#include "ui/form/form_events.h"

#include <algorithm>
#include <string>
#include <utility>

#include "core/check.h"
#include "core/messages.h"
#include "platform/text1252.h"

/// The one way into a form for what its user does.
class Form_Access {
public:
    static Control& At(Form& F, std::string_view Name) { return F.At(Name); }
    static void Tell(Form& F, const Control& C) { F.Tell(C); }
    static std::string& Focus(Form& F) { return F.Focus_; }
    static std::string& Typed(Form& F) { return F.Typed_; }
};

namespace {

using Access = Form_Access;

bool Is_Field(const Control& C) {
    return C.Kind == Control_Kind::Text || C.Kind == Control_Kind::Number;
}

bool In_Reach(const Form& F, std::string_view Name) {
    return !F.Is_Closed() && F.Has(Name) && F.Is_Shown(Name) && F.Is_Visible(Name) &&
           F.Is_Enabled(Name);
}

// A handler before this one may have closed the form, and this one may replace itself.
void Run(const Form& F, const std::function<void()>& Handler) {
    const auto Kept = Handler;
    if (Kept && !F.Is_Closed()) Kept();
}

// Whoever shows the form may have moved its focus already.
void Focus_Back(Form& F, const Control& C) {
    if (F.View != nullptr) F.View->Focus_Changed(C, true);
}

void Show_Held(Form& F, const Control& C) {
    if (C.Rule.Held) F.Set_Text(C.Name, C.Rule.Held());
}

// Reads the field that was typed into. While its message is up nothing counts as typed, so that
// a toolkit which reports the leaving twice brings one message.
bool Accept_Typed(Form& F) {
    const std::string Name = std::exchange(Access::Typed(F), {});
    if (Name.empty()) return true;
    const Control& C = F[Name];
    if (C.Rule.Accept && !C.Rule.Accept(std::string(Trim(C.Text)))) {
        Msg_Show(1);
        Access::Typed(F) = Name;
        Access::Focus(F) = Name;
        Focus_Back(F, C);
        return false;
    }
    Show_Held(F, C);
    return true;
}

bool Looks_At_No_Field(const Control& C) {
    return C.Role == Button_Role::Cancel || C.Role == Button_Role::Help;
}

// A text that the focus went past on its way to Cancel or Help stays to be read.
bool Leave_Field(Form& F) {
    const std::string From = F.Focus();
    if (!Accept_Typed(F)) return false;
    if (!From.empty()) Run(F, F[From].On_Leave);
    return true;
}

bool Move_Focus(Form& F, const Control& To) {
    if (F.Focus() == To.Name)
        return Looks_At_No_Field(To) || Access::Typed(F) == To.Name || Accept_Typed(F);
    if (!Looks_At_No_Field(To) && !Leave_Field(F)) return false;
    if (!In_Reach(F, To.Name)) return false;  // no longer, after what the leaving did
    Access::Focus(F) = To.Name;
    if (Is_Field(To)) Focus_Back(F, To);
    Run(F, To.On_Entry);
    return true;
}

bool Takes_Focus(const Control& C) {
    switch (C.Kind) {
        case Control_Kind::Button:
            return C.Icon.empty();  // tool buttons leave it where it is
        case Control_Kind::Menu:
        case Control_Kind::Menu_Item:
        case Control_Kind::Label:
        case Control_Kind::Scroll_Bar:
        case Control_Kind::Tabs:
            return false;
        default:
            return true;
    }
}

// Whether C may be used now: the field that had the focus is left first.
bool Reach(Form& F, const Control& C) {
    if (Looks_At_No_Field(C)) return true;
    return (Takes_Focus(C) ? Move_Focus(F, C) : Accept_Typed(F)) && In_Reach(F, C.Name);
}

const Control* With_Role(const Form& F, Button_Role Role) {
    for (const Control& C : F.Controls())
        if (C.Kind == Control_Kind::Button && C.Role == Role && In_Reach(F, C.Name)) return &C;
    return nullptr;
}

// What Enter does to the control with the focus itself; false when the form's Ok is meant.
bool Enter_On(Form& F, const Control& C) {
    if (Is_Field(C) && Access::Typed(F) == C.Name) {
        if (Accept_Typed(F) && F.Focus() == C.Name && !F.Is_Closed()) Focus_Back(F, C);
        return true;
    }
    const bool Clicks = C.Kind == Control_Kind::Button || (C.Read_Only && C.On_Click);
    const bool Doubles = C.Kind == Control_Kind::List && C.On_Double_Click && C.Value >= 0;
    if (Clicks) Form_Click(F, C.Name);
    if (Doubles) Form_Double_Click(F, C.Name);
    return Clicks || Doubles;
}

bool Enter_Key(Form& F, const Control* Focused) {
    if (Focused != nullptr && Enter_On(F, *Focused)) return true;
    const Control* Ok = With_Role(F, Button_Role::Ok);
    return Ok != nullptr && Form_Click(F, Ok->Name);
}

bool Escape_Key(Form& F, const Control* Focused) {
    if (Focused != nullptr && Is_Field(*Focused) && Access::Typed(F) == Focused->Name &&
        Focused->Rule.Held) {
        Show_Held(F, *Focused);
        Focus_Back(F, *Focused);
        return true;
    }
    const Control* Cancel = With_Role(F, Button_Role::Cancel);
    return Cancel != nullptr && Form_Click(F, Cancel->Name);
}

}  // namespace

void Form_Load(Form& F) {
    Run(F, F.On_Load);
}

bool Form_Click(Form& F, std::string_view Name) {
    if (!In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Reach(F, C)) return false;
    if (C.Kind == Control_Kind::Check) {
        F.Set_Value(Name, C.Value == 0 ? 1 : 0);
        Run(F, C.On_Change);
    }
    Run(F, C.On_Click);
    return true;
}

bool Form_Double_Click(Form& F, std::string_view Name) {
    if (!In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Reach(F, C)) return false;
    Run(F, C.On_Double_Click);
    return true;
}

bool Form_Choose(Form& F, std::string_view Name, Long I) {
    if (!In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    const Long Nb = C.Kind == Control_Kind::Options && C.Items.empty()
                        ? static_cast<Long>(C.Colours.size())
                        : static_cast<Long>(C.Items.size());
    if (C.Kind != Control_Kind::Tabs && (I < 0 || I >= Nb)) return false;
    if (!Reach(F, C)) {
        Access::Tell(F, C);  // the toolkit shows the choice already
        return false;
    }
    const bool Other = C.Value != I;
    F.Set_Value(Name, I);
    if (Other) Run(F, C.On_Change);
    Run(F, C.On_Click);
    return true;
}

bool Form_Scroll(Form& F, std::string_view Name, Long Value) {
    if (!In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    F.Set_Value(Name, std::clamp<Long>(Value, 0, C.Max));
    Run(F, C.On_Change);
    return true;
}

bool Form_Type(Form& F, std::string_view Name, std::string_view Text) {
    if (!In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Is_Field(C) || C.Read_Only || !Form_Enter_Control(F, Name)) return false;
    F.Set_Text(Name, Text);
    Access::Typed(F) = C.Name;
    Run(F, C.On_Change);
    return true;
}

bool Form_Enter_Control(Form& F, std::string_view Name) {
    if (!In_Reach(F, Name)) return false;
    return Move_Focus(F, F[Name]);
}

bool Form_Leave(Form& F) {
    return Accept_Typed(F);
}

bool Form_Key(Form& F, Key_Event K) {
    if (F.Is_Closed()) return false;
    if (F.On_Key && F.On_Key(K)) return true;
    const Control* Focused = !F.Focus().empty() && In_Reach(F, F.Focus()) ? &F[F.Focus()] : nullptr;
    if (Focused != nullptr && Focused->On_Key && Focused->On_Key(K)) return true;
    if (K.Shift != 0) return false;
    if (K.Code == Key_Enter) return Enter_Key(F, Focused);
    if (K.Code == Key_Escape) return Escape_Key(F, Focused);
    return false;
}

bool Form_Mouse(Form& F, std::string_view Name, const Mouse_Event& E) {
    if (!In_Reach(F, Name)) return false;
    const Control& C = F[Name];
    if (!C.On_Mouse) return false;
    C.On_Mouse(E);
    return true;
}

void Form_Tick(Form& F) {
    Run(F, F.On_Tick);
}

bool Form_User_Close(Form& F) {
    if (F.Is_Closed()) return true;
    if (F.On_Close) {
        if (F.On_Close()) F.Close(Form_End::Closed);
    } else if (const Control* Cancel = With_Role(F, Button_Role::Cancel)) {
        Form_Click(F, Cancel->Name);
    } else {
        F.Close(Form_End::Closed);
    }
    return F.Is_Closed();
}
