// gen/class_lists.h - the classes that the designer can choose from.
//
// LC.txt and WC.txt in the program's Resource directory hold a class a line; the last line of
// each is no class but says how to add one. A list is in the order of its file, from place 0.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "core/numbers.h"

enum class Class_Sort { Land, Water };

struct Class_Entry {
    Byte Class = 0;
    Byte Texture = 0;  // number of the simulator's texture that shows the class
    std::string Text;  // number and description, as a list shows them
};
using LC_Entry = Class_Entry;
using WC_Entry = Class_Entry;

/// Tab_LC_List and Tab_WC_List as the files are now. Empty without a file, and when it has no
/// line but the last. Lines with a number beyond a Byte are left out.
std::vector<LC_Entry> LC_List_Read();
std::vector<WC_Entry> WC_List_Read();

std::vector<Class_Entry> Class_List_Read(Class_Sort Sort);

/// The place of the first entry of Class, or nothing.
std::optional<std::size_t> Class_Place(const std::vector<Class_Entry>& List, Long Class);

/// The simulator has textures for the classes up to this one; others stand for no class.
inline constexpr Byte Last_With_Texture = 251;

/// The file of texture number Texture; empty without the directory Dir_Texture. Whether the file
/// is there is not looked at.
std::string Class_Texture_Path(Class_Sort Sort, Byte Texture);
