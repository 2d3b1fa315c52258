// ui/frm/view_controls.h - the menu View, the figure of the zoom and the read-out's copy.
#pragma once

#include "ui/form/events.h"
#include "ui/form/form.h"

/// Gives the controls their handlers.
void View_Controls_Install(Form& F);
/// Brings them in line with the view. Called after each act.
void View_Controls_Show();
/// A key that moves the view, when no mode has used it: arrows, Page Up and Down, Home, and Ctrl
/// with plus or minus. True when it was used.
bool View_Key(Key_Event K);
