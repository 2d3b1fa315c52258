// ui/dialogs/frm_class.cpp - the land class or the water class of a Cell.
#include "core/dialog_flags.h"
#include "ui/dialogs/class_choice.h"
#include "ui/dialogs/dialogs.h"
#include "ui/dialogs/square_dialog.h"

namespace {

// In what the two dialogs differ.
struct Class_Rules {
    const char* Form;
    Wording Title;
    Class_Sort Sort;
    const char* Temp_Name;
    Number_Limits Limits;  // of a class that is typed
};

template <typename R>
class Class_Form final : public Record_Dialog<R> {
    using Base = Record_Dialog<R>;

public:
    Class_Form(const Class_Rules& Rules, Project_Table<R>& Tab, R& Cur, Int& Cancelled)
        : Base(Rules.Form, Rules.Title, "LCreatMod", Tab, Cur, Cancelled),
          Classes_(*this, Rules.Sort, Rules.Temp_Name, [this] { Take_Row(); }) {
        this->Add_Number({.Name = "Num", .Words = {"Class", "Classe"}, .Columns = 4}, &R::Num,
                         Rules.Limits, [this](R& Record, Double X) { Record.Num = Known(X); });
        Layouts Parts{Fields({"Num"}), "Cmbo"};
        if (Rules.Sort == Class_Sort::Land) {
            this->Add({.Name = "LAutogen", .Words = {"Y : active Autogen", "Y : Autogen actif"}});
            Parts.emplace_back("LAutogen");
        }
        Parts.push_back(Row({"Pic", Space()}));
        this->Set_Layout(this->Around(std::move(Parts)));
    }

private:
    // A class that the list does not have becomes that of a new record.
    Byte Known(Double Typed) const {
        const auto Class = static_cast<Byte>(Typed);
        return Classes_.Has_Rows() && !Classes_.Has(Class) ? R().Num : Class;
    }
    void Take_Row() {
        if (const Class_Entry* Entry = Classes_.Chosen()) this->Put(&R::Num, Entry->Class);
    }
    void Prepare() override { Classes_.Read(); }
    // The row stays where it is as long as it shows the class: a list may have one twice.
    void Follow() override {
        const Class_Entry* Entry = Classes_.Chosen();
        const bool Shows_It = Entry != nullptr && Entry->Class == this->Cur().Num;
        if (!this->Differ(&R::Num) && !Shows_It) Classes_.Choose(this->Cur().Num);
        Classes_.Show_Class();
    }

    Class_Choice Classes_;
};

}  // namespace

std::unique_ptr<Form> Make_Frm_LC() {
    const Class_Rules Rules{.Form = "Frm_LC",
                            .Title = {"LandClass", "LandClass"},
                            .Sort = Class_Sort::Land,
                            .Temp_Name = "$BmpLC$.bmp",
                            .Limits = {.Min = 0.0, .Max = 254.0, .Whole = true}};
    return std::make_unique<Class_Form<LC_Cell>>(Rules, Tab_LC, Cur_LC, LC_Cancelled);
}

std::unique_ptr<Form> Make_Frm_WC() {
    const Class_Rules Rules{.Form = "Frm_WC",
                            .Title = {"WaterClass", "WaterClass"},
                            .Sort = Class_Sort::Water,
                            .Temp_Name = "$BmpWC$.bmp",
                            .Limits = {.Min = 1.0, .Max = 59.0, .Whole = true}};
    return std::make_unique<Class_Form<WC_Cell>>(Rules, Tab_WC, Cur_WC, WC_Cancelled);
}
