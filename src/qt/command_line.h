// qt/command_line.h - what the command line of terrafold asks for.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

struct Window_Arguments {
    enum class Command { Open, Help, Version };
    Command What = Command::Open;
    std::vector<std::string> Project;  // its words, as typed
    std::string Error;  // what is wrong with the command line; empty when it is right
};

/// The meaning of Words, the command line behind the program's name. Options of Qt, which take
/// effect by themselves, are passed over. A word is no option behind "--".
Window_Arguments Window_Parse(std::span<const std::string> Words);

/// The help text.
extern const char Window_Help[];
