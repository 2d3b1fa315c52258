// ui/form/form.cpp - controls by name, and telling whoever shows them.
#include "ui/form/form.h"

#include <algorithm>
#include <utility>

#include "core/check.h"
#include "core/program.h"

Form::Form(std::string Name, Wording Title)
    : Name_(std::move(Name)), Language_(::Language), Title_Words_(Title) {
    Title_ = Title_Words_.In(Language_);
}

void Form::Add(Control C) {
    Check(!Has(C.Name), "a form gives a name once");
    Word(C);
    Row_.emplace(C.Name, Controls_.size());
    Controls_.push_back(std::move(C));
}

void Form::Set_Layout(Layout L) {
    Root_ = std::move(L);
    Parent_.clear();
    Pages_.clear();
    Note_Parents(Root_, {});
}

void Form::Note_Parents(const Layout& L, const std::string& Parent) {
    if (!L.Name.empty()) {
        Check(Has(L.Name), "a layout names controls of its form");
        const bool Is_New = Parent_.emplace(L.Name, Parent).second;
        Check(Is_New || L.What == Layout::Kind::Option, "a control stands in one place");
    }
    if (L.What == Layout::Kind::Tabs)
        for (const Layout& Page : L.Parts) Pages_[L.Name].push_back(Page.Name);
    for (const Layout& Part : L.Parts) Note_Parents(Part, L.Name.empty() ? Parent : L.Name);
}

bool Form::Has(std::string_view Control_Name) const {
    return Row_.find(Control_Name) != Row_.end();
}

const Control& Form::operator[](std::string_view Control_Name) const {
    const auto Found = Row_.find(Control_Name);
    Check(Found != Row_.end(), "the form has the control");
    return Controls_[Found->second];
}

Control& Form::At(std::string_view Control_Name) {
    return const_cast<Control&>(std::as_const(*this)[Control_Name]);
}

const std::string& Form::Parent(std::string_view Control_Name) const {
    static const std::string None;
    const auto Found = Parent_.find(Control_Name);
    return Found == Parent_.end() ? None : Found->second;
}

bool Form::Is_Shown(std::string_view Control_Name) const {
    return Parent_.find(Control_Name) != Parent_.end();
}

bool Form::Is_Enabled(std::string_view Control_Name) const {
    const Control& C = (*this)[Control_Name];
    const std::string& Round = Parent(Control_Name);
    return C.Enabled && (Round.empty() || Is_Enabled(Round));
}

bool Form::Is_Visible(std::string_view Control_Name) const {
    const Control& C = (*this)[Control_Name];
    const std::string& Round = Parent(Control_Name);
    if (!C.Visible || Round.empty()) return C.Visible;
    const bool On_A_Page = (*this)[Round].Kind == Control_Kind::Tab;
    if (On_A_Page && (*this)[Parent(Round)].Value != Page_Number(Round)) return false;
    return Is_Visible(Round);
}

const std::vector<std::string>& Form::Pages(std::string_view Tabs) const {
    static const std::vector<std::string> None;
    const auto Found = Pages_.find(Tabs);
    return Found == Pages_.end() ? None : Found->second;
}

Long Form::Page_Number(std::string_view Page) const {
    const std::vector<std::string>& All = Pages(Parent(Page));
    return static_cast<Long>(std::ranges::find(All, Page) - All.begin());
}

void Form::Tell(const Control& C) {
    if (View != nullptr) View->Control_Changed(C);
}

namespace {

// Whether Field had another value.
template <typename T, typename V>
bool Change(T& Field, V&& Value) {
    if (Field == Value) return false;
    Field = std::forward<V>(Value);
    return true;
}

}  // namespace

void Form::Set_Caption(std::string_view Control_Name, std::string_view Caption) {
    Control& C = At(Control_Name);
    if (Change(C.Caption, Caption)) Tell(C);
}

void Form::Set_Tip(std::string_view Control_Name, std::string_view Tip) {
    Control& C = At(Control_Name);
    if (Change(C.Tip, Tip)) Tell(C);
}

void Form::Set_Text(std::string_view Control_Name, std::string_view Text) {
    Control& C = At(Control_Name);
    if (Typed_ == C.Name) Typed_.clear();
    if (Change(C.Text, Text)) Tell(C);
}

void Form::Set_Value(std::string_view Control_Name, Long Value) {
    Control& C = At(Control_Name);
    if (Change(C.Value, Value)) Tell(C);
}

void Form::Set_Items(std::string_view Control_Name, std::vector<std::string> Items, Long Value) {
    Control& C = At(Control_Name);
    const bool Other_Items = Change(C.Items, std::move(Items));
    const bool Other_Value = Change(C.Value, Value);
    if (Other_Items || Other_Value) Tell(C);
}

void Form::Set_Shown(std::string_view Control_Name, const Picture* Shown) {
    Control& C = At(Control_Name);
    C.Shown = Shown;  // told always: the picture itself may have changed
    Tell(C);
}

void Form::Set_Colour(std::string_view Control_Name, Long Colour, Long Back) {
    Control& C = At(Control_Name);
    const bool Other_Colour = Change(C.Colour, Colour);
    const bool Other_Back = Change(C.Back_Colour, Back);
    if (Other_Colour || Other_Back) Tell(C);
}

void Form::Set_Enabled(std::string_view Control_Name, bool On) {
    Control& C = At(Control_Name);
    if (Change(C.Enabled, On)) Tell(C);
}

void Form::Set_Visible(std::string_view Control_Name, bool On) {
    Control& C = At(Control_Name);
    if (Change(C.Visible, On)) Tell(C);
}

void Form::Set_Title(std::string_view Title) {
    if (Change(Title_, Title) && View != nullptr) View->Title_Changed(*this);
}

void Form::Set_Focus(std::string_view Control_Name) {
    const Control& C = (*this)[Control_Name];
    Focus_ = C.Name;
    if (View != nullptr) View->Focus_Changed(C, true);
}

void Form::Word(Control& C) const {
    if (C.Words.Is_Set()) C.Caption = C.Words.In(Language_);
    if (C.Tip_Words.Is_Set()) C.Tip = C.Tip_Words.In(Language_);
    if (C.Said_Words.Is_Set()) C.Said = C.Said_Words.In(Language_);
    if (C.Item_Words.empty()) return;
    C.Items.clear();
    for (const Wording& W : C.Item_Words) C.Items.emplace_back(W.In(Language_));
}

void Form::Set_Language(std::string_view Language) {
    Language_ = Language;
    for (Control& C : Controls_) {
        Word(C);
        Tell(C);
    }
    if (Title_Words_.Is_Set()) Set_Title(Title_Words_.In(Language_));
}

void Form::Set_Above_Main(bool On) {
    if (Change(Above_Main_, On) && View != nullptr) View->Above_Main_Changed(*this);
}

void Form::Close(Form_End End) {
    if (std::exchange(Closed_, true)) return;
    End_ = End;
    if (On_Unload) On_Unload();
    if (View != nullptr) View->Form_Closed(*this);
}
