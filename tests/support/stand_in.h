// tests/support/stand_in.h - a program that stands in for an outside tool.
#pragma once

#include <string>
#include <string_view>

#include "support/temp_dir.h"

/// Makes a program of that name in Dir which does what Plan says, a line each, and ends at the
/// first line that fails. "$1" is its first argument.
///
///     tell FILE        writes its arguments, each in brackets, in code page 1252
///     copy FROM TO     copies a file, replacing an older one
///     need FILE        fails when there is no such file
///     same WORD WORD   fails when they differ
///     wait MILLISECONDS
///     print WORD       to standard output
///     exit STATUS
///
/// Paths without a root go from the directory of the program; words have no blanks.
void Put_Stand_In(const Temp_Dir& Dir, std::string_view Name, std::string_view Plan);
