// platform/arguments.h - the words of the command line.
#pragma once

#include <string>
#include <vector>

/// The arguments behind the program's name as the system has them, in UTF-8 where it has text
/// and byte by byte where it has bytes.
std::vector<std::string> Program_Arguments(int argc, const char* const* argv);
