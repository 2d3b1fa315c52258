// ui/frm/frm_keys.h - the keys of the main form.
#pragma once

#include <string>
#include <string_view>

#include "ui/form/events.h"

/// The letters that go with Alt, for whoever gives out others.
std::string Alt_Letters();

/// The key that presses a button of the tool bar with Alt, as "Alt+C"; "" when none does.
std::string Alt_Key_Of(std::string_view Button);

/// A key of the main form, which sees each first: Alt with a key presses a button if that is
/// enabled; other keys go to the mode that is on. True when the key was used.
bool Frm_Key(Key_Event K);
