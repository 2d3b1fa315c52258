// ui/frm/frm_help.h - the help page, and what the program tells of itself.
#pragma once

#include <memory>

#include "ui/form/form.h"

/// A table of all keys, taken from the menus of the main form, of what the mouse and other keys do,
/// and of what the modes are for.
std::unique_ptr<Form> Make_Frm_Help();

/// The commands of the menu Help.
void Mnu_Help_Page();
void Mnu_Help_About();
