// cli/commands.h - the commands of terrafold-cli.
#pragma once

#include <string>
#include <vector>

/// Runs the command line Words and returns the exit status of the program: 0 all well, 1 a
/// message was shown or a texture is none, 2 wrong usage, 3 the project could not be opened.
/// Results go to standard output; what is wrong with the usage or a texture to standard error.
int Cli_Run(const std::vector<std::string>& Words);
