// platform/program_dir.h - where the program keeps its resources and what it generates.
#pragma once

#include <optional>
#include <string>
#include <string_view>

/// The directory of the running program's file, in the program's form, no final backslash.
std::optional<std::string> Own_Dir();

/// The directory that App_Path is to be, in the program's form, no final backslash: the one
/// named by the environment variable TERRAFOLD_HOME; else the program's own directory if it
/// holds Resource and can be written; else the user's data directory for Terrafold. Nothing
/// when none of them can be used.
std::optional<std::string> Find_App_Dir();

/// Whether Dir can be App_Path: command lines of tools hold its path in double quotes.
inline bool App_Dir_Can_Serve(std::string_view Dir) {
    return Dir.find('"') == std::string_view::npos;
}

/// Makes Dir ready to be App_Path: makes it if it is absent, and fills it from the installed
/// resources what its Resource directory lacks; reference files come only when that has nothing
/// yet. Never replaces a file. False when it cannot be written.
bool Prepare_App_Dir(std::string_view Dir);
