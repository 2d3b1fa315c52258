// cli/arguments.h - what the command line asks for.
#pragma once

#include <span>
#include <string>

#include "core/numbers.h"

struct Cli_Arguments {
    enum class Command { Generate, Restore_Outputs, Play, Resave, Info, Texture, Help, Version };
    Command What = Command::Help;
    std::string Project;   // or script or texture: the system's path, as typed; so are the next two
    std::string Target;    // of resave and texture
    std::string App_Dir;   // --app-path; empty when not given
    std::string Language;  // --language: "FR" or "US"; empty when not given
    std::string Palette;   // --palette, the system's path; empty when not given
    bool Is_Journal = false;  // --journal: Project is a journal to be told of
    bool Dry_Run = false;
    bool Create = false;  // --create: App_Dir is made if it is not there
    bool Sources_Only = false;
    bool Json = false;
    std::string Output_Dir;  // the system's path, as typed; empty when not given
    Long Canvas_Width = 801, Canvas_Height = 601;  // --canvas

    std::string Error;  // what is wrong with the command line; empty when it is right
};

/// Whether a command works in the home, and takes the options that tell of it.
bool Has_Home_Options(Cli_Arguments::Command What);

/// The meaning of Words, the command line behind the program's name.
Cli_Arguments Cli_Parse(std::span<const std::string> Words);

/// The help text.
extern const char Cli_Help[];
