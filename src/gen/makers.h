// gen/makers.h - the outside tools that make outputs, and what of them is missing.
#pragma once

#include <string>
#include <string_view>
#include <vector>

/// Tools that an output goes through.
enum class Maker {
    Assembler,      // bglc.exe
    Night_Lights,   // scasm.exe
    Class_Builder,  // three, one after the other
};

/// The paths of the tools of a maker that can't be started, in the order they are used.
std::vector<std::string> Missing_Tools(Maker M);

/// The maker of an output of the open project, by its name. Class files are not among them.
Maker Maker_Of(std::string_view Bgl);
