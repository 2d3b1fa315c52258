// ui/form/form_list.h - every dialog by its name, and the one way to run one.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "core/resets.h"
#include "ui/form/form.h"

/// Shows forms: the window, or a test.
class Form_Host {
public:
    virtual ~Form_Host() = default;
    /// Shows F modally and returns when it is closed.
    virtual void Run_Modal(Form& F) = 0;
    /// Shows F, which is not modal, until it is closed, and returns at once. A host that does
    /// not is one where forms are found by Forms_Open.
    virtual void Show_Open(std::shared_ptr<Form>) {}
};

using Form_Maker = std::function<std::unique_ptr<Form>()>;

/// Registers a dialog; a name given again replaces it.
void Form_Register(std::string Name, Form_Maker Make);
/// The names of all that are registered, in order.
std::vector<std::string> Form_Names();
/// A new form of that name; nothing when there is none.
std::unique_ptr<Form> Form_Make(std::string_view Name);

/// Makes the dialog Name, loads it and lets Host run it. Absent when it is not registered.
Form_End Form_Run(std::string_view Name, Form_Host& Host);

/// Opens the dialog Name without waiting for its end: makes it, loads it and lets Host show it.
/// False when it is not registered. One that is open already stays as it is.
bool Form_Open(std::string_view Name, Form_Host& Host);
/// The forms that are open so, the one opened last at the end. Whoever works one keeps it alive
/// until the work is done, for it may close itself.
std::vector<std::shared_ptr<Form>> Forms_Open();
/// Closes them all: the project they belong to, or the program, ends.
void Forms_Close();

void Forms_Forget();
inline const bool Forms_Are_Reset = At_Reset(Forms_Forget);
