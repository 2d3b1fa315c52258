// core/field_reader.cpp - where in a file something is.
#include "core/field_reader.h"

#include "core/program.h"
#include "platform/paths.h"

std::string Line_Of_File(std::string_view Path, Long Line) {
    std::string Text = Path.empty() ? std::string() : Shown_Path(Path) + ", ";
    return Text + In_Language("line ", "ligne ") + std::to_string(Line);
}
