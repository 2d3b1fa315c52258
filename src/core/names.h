// core/names.h - the rules of file names and paths in dialogs and texture lists.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// Whether Name, without a directory, may name a file: no leading blank; letters, digits,
/// blanks and _.!#$%&'()-~{} only; one dot, not first, not behind a blank, with one to three
/// characters behind it.
bool Name_Valid(std::string_view Name);

/// That rule in words, in the program's language.
std::string Name_Rule_Text();

/// Parts Path, trimmed, at its last "\" into Dir (without that "\") and Name. Err is 1, and
/// Dir and Name stay as they were, when Path is empty, ends in "\", has its only "\" at the
/// start, or its name is not valid.
void Path_Split(std::string_view Path, std::string& Dir, std::string& Name, Byte& Err);

/// Parts a file name at its first "." into Base and Ext, Ext in capitals.
void Name_Split(std::string_view Text, std::string& Base, std::string& Ext);
