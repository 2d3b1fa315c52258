// qt/boxes.h - message boxes and questions for a file.
#pragma once

#include <optional>
#include <string>

#include "core/host.h"

class QWidget;

/// Shows B above Parent, worded in the program's language, and returns the button pressed.
Int Show_Message_Box(const Box& B, QWidget* Parent);

/// Asks for a file; a name typed without an extension gets that of the filter.
std::optional<std::string> Ask_For_File(const File_Question& Q, QWidget* Parent);
