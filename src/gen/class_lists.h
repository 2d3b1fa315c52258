// gen/class_lists.h - the classes that the designer can choose from.
//
// LC.txt and WC.txt in the program's Resource directory hold a class a line; the last line of
// each is no class but says how to add one. A list is in the order of its file, from place 0.
#pragma once

#include <string>
#include <vector>

#include "core/numbers.h"

struct LC_Entry {
    Byte Class = 0;
    Byte Texture = 0;  // number of the simulator's texture that shows the class
    std::string Text;  // number and description, as a list shows them
};

struct WC_Entry {
    Byte Class = 0;
    std::string Text;
};

/// Tab_LC_List and Tab_WC_List as the files are now. Empty without a file, and when it has no
/// line but the last. Lines with a number beyond a Byte are left out.
std::vector<LC_Entry> LC_List_Read();
std::vector<WC_Entry> WC_List_Read();
