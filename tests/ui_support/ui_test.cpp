// tests/ui_support/ui_test.cpp - the host of tests in front of the main form.
#include "ui_support/ui_test.h"

#include <utility>

#include "core/lifecycle.h"
#include "ui/canvas/view.h"
#include "ui/dialogs/dialogs.h"
#include "ui/frm/frm.h"

Form_End Ui_Test_Host::Run_Form(std::string_view Form) {
    if (Forms.find(Form) != Forms.end()) return Test_Host::Run_Form(Form);
    Events.push_back("form " + std::string(Form));
    const Form_End End = Form_Run(Form, *this);
    // A caller that asks until it has an answer must not ask for ever.
    return std::exchange(Has_Script_, true) ? End : Form_End::Absent;
}

void Ui_Test_Host::Run_Modal(Form& F) {
    Has_Script_ = Run_By_Script(F);
}

void Ui_Test_Host::Set_Caption(std::string_view Control, std::string_view Text) {
    Test_Host::Set_Caption(Control, Text);
    Frm_Set_Caption(Control, Text);
}

void Ui_Test_Host::Set_Enabled(std::string_view Control, bool On) {
    Test_Host::Set_Enabled(Control, On);
    Frm_Set_Enabled(Control, On);
}

void Ui_Test_Host::Set_Visible(std::string_view Control, bool On) {
    Test_Host::Set_Visible(Control, On);
    Frm_Set_Visible(Control, On);
}

void Ui_Test_Host::Set_Value(std::string_view Control, Long Value) {
    Frm_Set_Value(Control, Value);
}

void Ui_Test_Host::Set_Focus(std::string_view Control) {
    Test_Host::Set_Focus(Control);
    Frm_Set_Focus(Control);
}

Ui_Test::Ui_Test() {
    Forms_Install();
    Frm_Install();
    Apply_Language();
    Disable_Project_Cmds();
    View_Reset();
}

Ui_Test::~Ui_Test() {
    if (const int Nb = Scripts_Left_Over(); Nb > 0)
        ADD_FAILURE() << Nb << " forms that were to run did not";
    Frm_Remove();
}
