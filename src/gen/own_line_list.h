// gen/own_line_list.h - the kinds of line that the designer can choose from.
//
// OwnLines4.txt (own_lines.h) line by line: every section is a kind, in the order of the file.
#pragma once

#include <string>
#include <vector>

#include "core/numbers.h"

struct Own_Line_Entry {
    Int Code = 0;
    std::string Title;  // what stands behind "//" in the section line
    Byte Type = 2;
    bool Has_Effect = false;
};

/// Tab_OwnLine as the file is now. Empty without a file. A section without a code is left out.
std::vector<Own_Line_Entry> Own_Line_List_Read();

/// A kind as a list shows it: "4096 Y (2)Railway".
std::string Own_Line_Text(const Own_Line_Entry& Kind);
