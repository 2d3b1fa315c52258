// tests/ui_support/ui_test.h - the fixture of tests that work the main form and its dialogs.
#pragma once

#include "support/program_test.h"
#include "ui/form/form_list.h"
#include "ui_support/form_driver.h"

/// Records as Test_Host does. What concerns the main form reaches it, and dialogs run by their
/// scripts; a form put into Forms comes before the real one.
class Ui_Test_Host : public Test_Host, public Form_Host {
public:
    Form_End Run_Form(std::string_view Form) override;
    void Set_Caption(std::string_view Control, std::string_view Text) override;
    void Set_Enabled(std::string_view Control, bool On) override;
    void Set_Visible(std::string_view Control, bool On) override;
    void Set_Value(std::string_view Control, Long Value) override;
    void Set_Focus(std::string_view Control) override;
    void Run_Modal(Form& F) override;

private:
    bool Has_Script_ = true;  // of the form run last
};

/// Begins with the main form made and no project open.
class Ui_Test : public Program_Test {
protected:
    Ui_Test();
    ~Ui_Test() override;

    Ui_Test_Host Host_Of_Test;  // in the place of the base's

private:
    Host_Scope Scope_{Host_Of_Test};
};
