// ui/dialogs/class_texture.h - the simulator's texture that shows a land class.
#pragma once

#include <string>

#include "gen/class_lists.h"

/// Its path; empty for classes that have none.
std::string Class_Texture_Path(const LC_Entry& Class);
