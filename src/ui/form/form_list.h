// ui/form/form_list.h - every dialog by its name, and the one way to run one.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ui/form/form.h"

/// Shows forms: the window, or a test.
class Form_Host {
public:
    virtual ~Form_Host() = default;
    /// Shows F modally and returns when it is closed.
    virtual void Run_Modal(Form& F) = 0;
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
