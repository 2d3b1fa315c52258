// ui/form/keys_told.h - the keys of a control in words, as menus, tips and the help page tell them.
#pragma once

#include <string>
#include <string_view>

#include "ui/form/form.h"

/// All keys of C in the language Lang, "Ctrl+Z, Ctrl+Y"; "" when it has none.
std::string Keys_Text(const Control& C, std::string_view Lang);

/// The tip of C, and its keys behind it.
std::string Tip_With_Keys(const Control& C, std::string_view Lang);
