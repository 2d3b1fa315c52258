// ui/form/form_events.cpp - the rules that all controls share.
#include "ui/form/form_events.h"

#include <algorithm>
#include <optional>
#include <string>
#include <utility>
#include <vector>

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

Int Acts_Under_Way = 0;

// What happens within an act belongs to it.
class Act {
public:
    explicit Act(const Form& F, bool Is_Tick = false) : Of_(F.Name()), Is_Tick_(Is_Tick) {
        ++Acts_Under_Way;
    }
    ~Act() {
        if (Acts_Under_Way == 1 && On_Act_Ended) On_Act_Ended(Of_, Is_Tick_);
        if (Acts_Under_Way > 0) --Acts_Under_Way;
    }
    Act(const Act&) = delete;
    Act& operator=(const Act&) = delete;

private:
    std::string Of_;
    bool Is_Tick_;
};

using Access = Form_Access;

bool Is_Field(const Control& C) {
    return C.Kind == Control_Kind::Text || C.Kind == Control_Kind::Number;
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
        Msg_Wrong_Value(C.Words.In(F.Language()), C.Text,
                        C.Rule.Allowed ? C.Rule.Allowed() : std::string());
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
    if (!Form_In_Reach(F, To.Name)) return false;  // no longer, after what the leaving did
    Access::Focus(F) = To.Name;
    if (Is_Field(To)) Focus_Back(F, To);
    Run(F, To.On_Entry);
    return true;
}

// Whether C may be used now: the field that had the focus is left first.
bool Reach(Form& F, const Control& C) {
    if (Looks_At_No_Field(C)) return true;
    return (Form_Takes_Focus(C) ? Move_Focus(F, C) : Accept_Typed(F)) && Form_In_Reach(F, C.Name);
}

const Control* With_Role(const Form& F, Button_Role Role) {
    for (const Control& C : F.Controls())
        if (C.Kind == Control_Kind::Button && C.Role == Role && Form_In_Reach(F, C.Name)) return &C;
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
    if (Cancel != nullptr) return Form_Click(F, Cancel->Name);
    if (F.Modal) Form_User_Close(F);
    return F.Modal;
}

// Items of a control to choose from, pages of Tabs.
Long Nb_Choices(const Form& F, const Control& C) {
    if (C.Kind == Control_Kind::Tabs) return static_cast<Long>(F.Pages(C.Name).size());
    const bool Painted = C.Kind == Control_Kind::Options && C.Items.empty();
    return static_cast<Long>(Painted ? C.Colours.size() : C.Items.size());
}

// The control with the focus may have gone to the back with its page.
void Leave_What_Is_Hidden(Form& F) {
    const std::string From = F.Focus();
    if (From.empty() || F.Is_Visible(From)) return;
    Access::Focus(F).clear();
    Run(F, F[From].On_Leave);
}

// Controls that the focus can go to now, in the order of the layout.
void Note_Focusable(const Form& F, const Layout& L, std::vector<std::string>& To) {
    if (L.Parts.empty() && !L.Name.empty() && Form_In_Reach(F, L.Name) &&
        Form_Takes_Focus(F[L.Name]) && (To.empty() || To.back() != L.Name))
        To.push_back(L.Name);
    for (const Layout& Part : L.Parts) Note_Focusable(F, Part, To);
}

}  // namespace

void Acts_Reset() {
    On_Act_Ended = nullptr;
    Acts_Under_Way = 0;
}

bool Form_In_Reach(const Form& F, std::string_view Name) {
    return !F.Is_Closed() && F.Has(Name) && F.Is_Shown(Name) && F.Is_Visible(Name) &&
           F.Is_Enabled(Name);
}

void Form_Load(Form& F) {
    const Act Now(F);
    Run(F, F.On_Load);
}

bool Form_Click(Form& F, std::string_view Name) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Reach(F, C)) return false;
    if (C.Kind == Control_Kind::Check) {
        F.Set_Value(Name, C.Value == 1 ? 0 : 1);
        Run(F, C.On_Change);
    }
    Run(F, C.On_Click);
    return true;
}

bool Form_Double_Click(Form& F, std::string_view Name) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Reach(F, C)) return false;
    Run(F, C.On_Double_Click);
    Run(F, C.On_Choose);
    return true;
}

bool Form_Open_Chooser(Form& F, std::string_view Name) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name) || !F[Name].On_Choose || !Reach(F, F[Name])) return false;
    Run(F, F[Name].On_Choose);
    return true;
}

bool Form_Can_Choose(const Form& F, std::string_view Name, Long I) {
    const Control& C = F[Name];
    if (I < 0 || I >= Nb_Choices(F, C)) return false;
    if (C.Kind != Control_Kind::Tabs) return true;
    const Control& Page = F[F.Pages(Name)[static_cast<std::size_t>(I)]];
    return Page.Enabled && Page.Visible;
}

bool Form_Choose(Form& F, std::string_view Name, Long I) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Form_Can_Choose(F, Name, I)) return false;
    if (!Reach(F, C)) {
        Access::Tell(F, C);  // the toolkit shows the choice already
        return false;
    }
    const bool Other = C.Value != I;
    F.Set_Value(Name, I);
    Leave_What_Is_Hidden(F);
    if (Other) Run(F, C.On_Change);
    Run(F, C.On_Click);
    return true;
}

bool Form_Bring_To_Front(Form& F, std::string_view Name) {
    const Act Now(F);
    const std::string Round = F.Parent(Name);
    if (Round.empty()) return F.Is_Shown(Name);
    if (!Form_Bring_To_Front(F, Round)) return false;
    if (F[Round].Kind != Control_Kind::Tab) return true;
    const std::string& Tabs = F.Parent(Round);
    const Long Page = F.Page_Number(Round);
    return F[Tabs].Value == Page || Form_Choose(F, Tabs, Page);
}

bool Form_Scroll(Form& F, std::string_view Name, Long Value) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    F.Set_Value(Name, std::clamp<Long>(Value, 0, C.Max));
    Run(F, C.On_Change);
    return true;
}

bool Form_Type(Form& F, std::string_view Name, std::string_view Text) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name)) return false;
    Control& C = Access::At(F, Name);
    if (!Is_Field(C) || C.Read_Only || !Form_Enter_Control(F, Name)) return false;
    std::string Kept(Text);
    if (C.No_Quotes) std::ranges::replace(Kept, '"', '\'');
    F.Set_Text(Name, Kept);
    Access::Typed(F) = C.Name;
    Run(F, C.On_Change);
    return true;
}

bool Form_Enter_Control(Form& F, std::string_view Name) {
    const Act Now(F);
    if (!Form_In_Reach(F, Name)) return false;
    return Move_Focus(F, F[Name]);
}

bool Form_Takes_Focus(const Control& C) {
    switch (C.Kind) {
        case Control_Kind::Button:
            return C.Icon.empty();  // tool buttons leave it where it is
        case Control_Kind::Menu:
        case Control_Kind::Menu_Item:
        case Control_Kind::Label:
        case Control_Kind::Bar:
        case Control_Kind::Scroll_Bar:
        case Control_Kind::Tabs:
            return false;
        default:
            return true;
    }
}

bool Form_Next_Control(Form& F) {
    const Act Now(F);
    std::vector<std::string> Order;
    Note_Focusable(F, F.Root(), Order);
    if (Order.empty()) return false;
    const auto At = std::find(Order.begin(), Order.end(), F.Focus());
    const bool Is_Last = At == Order.end() || At + 1 == Order.end();
    return Form_Enter_Control(F, Is_Last ? Order.front() : *(At + 1));
}

bool Form_Leave(Form& F) {
    const Act Now(F);
    return Accept_Typed(F);
}

bool Form_Key(Form& F, Key_Event K) {
    const Act Now(F);
    if (F.Is_Closed()) return false;
    if (F.On_Key && F.On_Key(K)) return true;
    const Control* Focused =
        !F.Focus().empty() && Form_In_Reach(F, F.Focus()) ? &F[F.Focus()] : nullptr;
    if (Focused != nullptr && Focused->On_Key && Focused->On_Key(K)) return true;
    if (K.Shift != 0) return false;
    if (K.Code == Key_Enter) return Enter_Key(F, Focused);
    if (K.Code == Key_Escape) return Escape_Key(F, Focused);
    if (K.Code == Key_F1) {
        const Control* Help = With_Role(F, Button_Role::Help);
        return Help != nullptr && Form_Click(F, Help->Name);
    }
    if (K.Code == Key_F4) return Focused != nullptr && Form_Open_Chooser(F, Focused->Name);
    return false;
}

bool Form_Mouse(Form& F, std::string_view Name, const Mouse_Event& E) {
    if (!Form_In_Reach(F, Name)) return false;
    const Control& C = F[Name];
    if (!C.On_Mouse) return false;
    std::optional<Act> Now;
    if (E.What != Mouse_Event::Kind::Move) Now.emplace(F);
    C.On_Mouse(E);
    return true;
}

void Form_Tick(Form& F) {
    const Act Now(F, true);
    Run(F, F.On_Tick);
}

bool Form_User_Close(Form& F) {
    const Act Now(F);
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
