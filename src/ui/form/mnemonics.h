// ui/form/mnemonics.h - which letter of its caption opens a menu with Alt.
#pragma once

#include <map>
#include <string>

#include "ui/form/form.h"

/// For each menu in the layout of F the place of its letter in its caption: the first one that
/// the form does not take itself (Reserved_Keys) and no menu before it has. Menus without such
/// a letter are not in the map; they are reached by the arrow keys from another.
std::map<std::string, std::size_t> Menu_Mnemonics(const Form& F);
