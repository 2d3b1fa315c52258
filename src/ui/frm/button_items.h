// ui/frm/button_items.h - menu items that press a button of the tool bar, so that each of its
// commands is in a menu, too.
#pragma once

#include <string_view>

#include "ui/form/form.h"

/// Adds the items of the buttons, which F must have; and gives them their handlers.
void Button_Items_Add(Form& F);
void Button_Items_Install(Form& F);

/// An item is in reach while its button is and has something to do; of an editing mode it is
/// checked while that is on.
void Button_Items_Show(Form& F);

/// The button that an item presses, "" when it is no such item.
std::string_view Button_Of_Item(std::string_view Item);
