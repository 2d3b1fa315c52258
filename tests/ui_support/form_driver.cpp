// tests/ui_support/form_driver.cpp - the routines of form_events.h, with a check before each.
#include "ui_support/form_driver.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <deque>

#include "support/test_host.h"
#include "ui/form/form_events.h"

namespace {

std::deque<std::function<void(Form_Driver&)>> Scripts;

}  // namespace

bool Form_Driver::Reach(std::string_view Name) const {
    const char* Why = nullptr;
    if (Form_.Is_Closed())
        Why = "the form is closed";
    else if (!Form_.Has(Name) || !Form_.Is_Shown(Name))
        Why = "is not there";
    else if (!Form_.Is_Visible(Name))
        Why = "is hidden";
    else if (!Form_.Is_Enabled(Name))
        Why = "is disabled";
    if (Why != nullptr) ADD_FAILURE() << Form_.Name() << ": " << Name << " " << Why;
    return Why == nullptr;
}

bool Form_Driver::Click(std::string_view Name) {
    return Reach(Name) && Form_Click(Form_, Name);
}

bool Form_Driver::Double_Click(std::string_view Name) {
    return Reach(Name) && Form_Double_Click(Form_, Name);
}

bool Form_Driver::Choose(std::string_view Name, Long I) {
    return Reach(Name) && Form_Choose(Form_, Name, I);
}

bool Form_Driver::Choose(std::string_view Name, std::string_view Item) {
    if (!Reach(Name)) return false;
    const auto& Items = Form_[Name].Items;
    const auto At = std::ranges::find(Items, Item);
    if (At == Items.end()) {
        ADD_FAILURE() << Form_.Name() << ": " << Name << " has no item " << Item;
        return false;
    }
    return Form_Choose(Form_, Name, static_cast<Long>(At - Items.begin()));
}

bool Form_Driver::Type(std::string_view Name, std::string_view Text) {
    return Reach(Name) && Form_Type(Form_, Name, Text);
}

bool Form_Driver::Focus(std::string_view Name) {
    return Reach(Name) && Form_Enter_Control(Form_, Name);
}

bool Form_Driver::Enter() {
    return Form_Key(Form_, {Key_Enter, 0});
}

bool Form_Driver::Leave() {
    return Form_Leave(Form_);
}

bool Form_Driver::Key(Key_Event K) {
    return Form_Key(Form_, K);
}

bool Form_Driver::Close() {
    return Form_User_Close(Form_);
}

const Control& Form_Driver::Of(std::string_view Name) const {
    static const Control None;
    if (Form_.Has(Name)) return Form_[Name];
    ADD_FAILURE() << Form_.Name() << ": there is no " << Name;
    return None;
}

Int Form_Driver::Last_Message() const {
    return dynamic_cast<const Test_Host&>(The_Host()).Last_Message();
}

Modal_Script::Modal_Script(std::function<void(Form_Driver&)> Work) {
    Scripts.push_back(std::move(Work));
}

bool Run_By_Script(Form& F) {
    Form_Driver D(F);
    const bool Has_Script = !Scripts.empty();
    if (!Has_Script) {
        ADD_FAILURE() << F.Name() << " ran, and no script was left for it";
    } else {
        const auto Work = std::move(Scripts.front());
        Scripts.pop_front();
        Work(D);
        if (!F.Is_Closed()) ADD_FAILURE() << F.Name() << " is still open after its script";
    }
    F.Close(Form_End::Closed);
    return Has_Script;
}

int Scripts_Left_Over() {
    const auto Nb = static_cast<int>(Scripts.size());
    Scripts.clear();
    return Nb;
}
