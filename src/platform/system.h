// platform/system.h - small questions whose answer each kind of system gives in its own way.
//
// For the sources of platform/ only. Texts are UTF-8.
#pragma once

#include <ctime>
#include <filesystem>
#include <optional>
#include <string>

/// The value of an environment variable; nothing when it is absent or empty.
std::optional<std::string> Env_Text(const char* Name);

/// The path in an environment variable, in the program's form, given in that form or in the
/// system's. Nothing when the variable is absent or empty; empty when code page 1252 can't
/// write its path.
std::optional<std::string> Env_Program_Path(const char* Name);

/// UTF-8 text as a path of the system, and back.
std::filesystem::path Path_From_Utf8(const std::string& Text);
std::string Utf8_From_Path(const std::filesystem::path& Path);

/// The file of the running program.
std::optional<std::filesystem::path> Own_Program();

/// The directory in which Terrafold is to keep this user's data, whether it exists or not.
std::optional<std::filesystem::path> User_Data_Dir();

/// Whether files can be made in Dir.
bool Dir_Writable(const std::filesystem::path& Dir);

std::tm Local_Time(std::time_t Time);
