// ui/frm/frm.h - the main form: menus, tool bar, canvas, read-outs and progress.
#pragma once

#include <memory>
#include <string_view>

#include "core/host.h"
#include "core/numbers.h"
#include "ui/form/form.h"

/// The main form. It stands from Frm_Install to Program_Reset; there is one.
Form& Frm();
bool Frm_Is_There();

/// Makes the main form and gives the core the routines of this folder that it asks for
/// (core/view_calls.h). Called before Program_Start.
void Frm_Install();
void Frm_Remove();

/// Rewords the main form: captions and tips in Language.
void Apply_Language();

/// A file dropped on the window: a project opens as by the menu. False when it is none.
bool Frm_Drop(std::string_view Path);

/// The part of a host that concerns the main form: a base of the window's host and of the one
/// of tests. Names that the form does not have, such as "Frm" for its title, have their meaning
/// or none.
void Frm_Set_Caption(std::string_view Control, std::string_view Text);
void Frm_Set_Enabled(std::string_view Control, bool On);
void Frm_Set_Visible(std::string_view Control, bool On);
void Frm_Set_Value(std::string_view Control, Long Value);
void Frm_Set_Focus(std::string_view Control);
