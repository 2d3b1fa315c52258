// platform/arguments.h - the words of the command line.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

/// The arguments behind the program's name as the system has them, in UTF-8 where it has text
/// and byte by byte where it has bytes.
std::vector<std::string> Program_Arguments(int argc, const char* const* argv);

/// The path that Words, in UTF-8, name, in the program's form. A path with blanks needs no quotes:
/// all words with a blank between them, where that is a file, else the first. Nothing without a
/// word, and for a path that can't be written.
std::optional<std::string> Path_Of_Words(std::span<const std::string> Words);
