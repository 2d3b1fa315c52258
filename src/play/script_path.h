// play/script_path.h - paths as scripts give them.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The program's form of a path that is given in it or in the system's, made absolute. Nothing
/// when the program cannot write it.
std::optional<std::string> Script_Path(std::string_view Text);
