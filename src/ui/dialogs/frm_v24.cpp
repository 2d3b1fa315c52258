// ui/dialogs/frm_v24.cpp - how the records of a version 4 file are brought up to date.
#include "core/project_file.h"
#include "ui/dialogs/dialogs.h"

namespace {

struct Choice_Row {
    const char* Name;
    const char* Caption;
    bool V24_Choice::*Of;
};

constexpr Choice_Row Choices[] = {
    {"Chk_Adapt_lines", "Adapt lines Extremities", &V24_Choice::Chk_Adapt_lines},
    {"Chk_Change_layer_Line", "Change line layer values", &V24_Choice::Chk_Change_layer_Line},
    {"Chk_Change_Layer_Poly", "Change poly layer values", &V24_Choice::Chk_Change_Layer_Poly},
    {"Chk_Change_Layer_Exclude", "Change exclude layers", &V24_Choice::Chk_Change_Layer_Exclude}};

class V24_Form final : public Form {
public:
    V24_Form() : Form("Frm_V24", {"From V4 to V5", "From V4 to V5"}) {
        Layouts Rows;
        for (const Choice_Row& C : Choices) {
            Add({.Kind = Control_Kind::Check,
                 .Name = C.Name,
                 .Words = {C.Caption, C.Caption},
                 .Value = V24_Choice{}.*C.Of ? 1 : 0});
            Rows.push_back(C.Name);
        }
        Add({.Kind = Control_Kind::Button,
             .Name = "Cmd_Ok",
             .Words = {"Ok", "Ok"},
             .Role = Button_Role::Ok,
             .On_Click = [this] { Ok(); }});
        Rows.push_back(Buttons({"Cmd_Ok"}));
        Set_Layout(Column(std::move(Rows)));
    }

private:
    void Ok() {
        for (const Choice_Row& C : Choices) The_V24.*C.Of = (*this)[C.Name].Value != 0;
        Close(Form_End::Ok);
    }
};

}  // namespace

std::unique_ptr<Form> Make_Frm_V24() {
    return std::make_unique<V24_Form>();
}
