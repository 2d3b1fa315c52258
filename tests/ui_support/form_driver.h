// tests/ui_support/form_driver.h - a test in the place of a form's user.
//
//     Modal_Script Script([](Form_Driver& D) {
//         D.Type("Delta_Alt", "1000");
//         EXPECT_FALSE(D.Click("Cmd_Ok"));
//         EXPECT_EQ(D.Last_Message(), 1);
//         D.Click("Cmd_Cancel");
//     });
//     Show_The_Dialog();
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "ui/form/form.h"

/// Works a form by its control names. A control that is absent, disabled or hidden fails the
/// test; a field that refuses to be left does not: the call then returns false.
class Form_Driver {
public:
    explicit Form_Driver(Form& F) : Form_(F) {}

    bool Click(std::string_view Name);
    bool Double_Click(std::string_view Name);
    bool Choose(std::string_view Name, Long I);
    /// Chooses the item of that text.
    bool Choose(std::string_view Name, std::string_view Item);
    /// Puts the focus into a field and replaces its text.
    bool Type(std::string_view Name, std::string_view Text);
    bool Focus(std::string_view Name);
    bool Enter();
    bool Leave();
    bool Key(Key_Event K);
    bool Close();

    const std::string& Title() const { return Form_.Title(); }
    const std::string& Text(std::string_view Name) const { return Of(Name).Text; }
    const std::vector<std::string>& Items(std::string_view Name) const { return Of(Name).Items; }
    Long Value(std::string_view Name) const { return Of(Name).Value; }
    const std::string& Has_Focus() const { return Form_.Focus(); }
    bool Is_Closed() const { return Form_.Is_Closed(); }

    /// The number of the message shown last, -1 when none was.
    Int Last_Message() const;

private:
    bool Reach(std::string_view Name) const;
    const Control& Of(std::string_view Name) const;  // an empty one in the place of none
    Form& Form_;
};

/// What the user does with the next modal form that runs and has no script yet. Scripts are
/// used in the order in which they were made; one left over at the end of the test fails it.
class Modal_Script {
public:
    explicit Modal_Script(std::function<void(Form_Driver&)> Work);
};

/// Runs F by the next script. Without one, and when F is still open after it, the test fails and
/// F is closed. False when there was none.
bool Run_By_Script(Form& F);

/// Scripts that nobody used; forgets them.
int Scripts_Left_Over();
