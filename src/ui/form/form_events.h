// ui/form/form_events.h - what a user does to a form, whether in a window or in a test.
//
// Each routine does what the toolkit reported: it changes the control, runs its handler, and
// applies the rules that all fields share. A control that is disabled, hidden or absent from
// the layout takes nothing: the routine returns false. So does one that could not be reached,
// because the field left for it refused its text.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "core/resets.h"
#include "ui/form/form.h"

/// Called when an act of the user has ended: what was done to the form Of, with all the dialogs
/// that it brought, or its timer's tick. A move of the mouse is none.
inline std::function<void(const std::string& Of, bool Is_Tick)> On_Act_Ended;
void Acts_Reset();
inline const bool Acts_Are_Reset = At_Reset(Acts_Reset);

/// The form is about to be shown: runs On_Load.
void Form_Load(Form& F);

/// A click: a button or menu item is pressed, a check box turned, a read-only field clicked.
bool Form_Click(Form& F, std::string_view Name);
bool Form_Double_Click(Form& F, std::string_view Name);
/// Opens the chooser of a field that has one, as its double click does.
bool Form_Open_Chooser(Form& F, std::string_view Name);

/// Item I of Options, a List or a Combo, page I of Tabs; the one chosen before counts too.
bool Form_Choose(Form& F, std::string_view Name, Long I);
/// Whether there is such an item, or such a page that is enabled and visible.
bool Form_Can_Choose(const Form& F, std::string_view Name, Long I);
/// Brings every page round a control to the front. False when one is disabled or hidden, or the
/// field that would be left refused its text.
bool Form_Bring_To_Front(Form& F, std::string_view Name);
/// Whether the user can reach a control now: the form is open, the control in the layout, visible
/// and enabled.
bool Form_In_Reach(const Form& F, std::string_view Name);
bool Form_Scroll(Form& F, std::string_view Name, Long Value);

/// The text of a field is now Text; Enter, Escape or leaving the field follow.
bool Form_Type(Form& F, std::string_view Name, std::string_view Text);

/// The focus goes to a control: the field that had it is left first, but for a button of role
/// Cancel or Help. A field's whole text is selected. False when the old one refused its text and
/// keeps the focus.
bool Form_Enter_Control(Form& F, std::string_view Name);

/// Whether a control can have the focus at all.
bool Form_Takes_Focus(const Control& C);

/// The focus goes on, in the order of the layout, to the next control that can have it.
bool Form_Next_Control(Form& F);

/// Accepts what was typed into a field, if anything was. False after message 1.
bool Form_Leave(Form& F);

/// A key, with the focus where it is. The form sees it first, then the control with the focus.
/// Enter after them: accepts what was typed into a field; else presses the button, clicks the
/// read-only field or double-clicks the chosen item of the list that has the focus; else presses
/// Ok. Escape puts back the value held if something was typed; else presses Cancel; else closes
/// a modal form as its own close button does. F4 opens the chooser of the field, F1 presses Help.
/// True when the key was used.
bool Form_Key(Form& F, Key_Event K);

bool Form_Mouse(Form& F, std::string_view Name, const Mouse_Event& E);
void Form_Tick(Form& F);

/// The user closes the window. True when the form is closed now.
bool Form_User_Close(Form& F);
