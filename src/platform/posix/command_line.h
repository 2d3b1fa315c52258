// platform/posix/command_line.h - a command line taken apart as Windows programs do it.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct Command {
    std::string Name;               // as it is written, without quotes
    std::filesystem::path Program;  // the file it names
    std::vector<std::string> Args;  // code page 1252, without quotes
};

/// Nothing when no program of that name is found. A name in double quotes ends at the second
/// quote; another ends at the first blank where what stands before it names a file. ".exe" is
/// added where only that gives a file. A name without a directory is looked for in the current
/// directory, then in PATH.
std::optional<Command> Parse_Command(std::string_view Cmd_Line);

/// Blanks and tabs divide arguments, except inside double quotes. Two quotes inside quotes are
/// one, and backslashes before a quote count half, the odd one taking the quote's meaning away.
std::vector<std::string> Parse_Arguments(std::string_view Text);

/// The executable file of that name in PATH.
std::optional<std::filesystem::path> Find_In_Path(const std::string& Name);
