// platform/posix/user_dirs.h - the user's home and Wine directories.
#pragma once

#include <filesystem>
#include <optional>
#include <string_view>

/// HOME, else what the system's list of users says.
std::optional<std::filesystem::path> Home_Dir();

/// WINEPREFIX, else ".wine" in the user's home, whether it exists or not.
std::optional<std::filesystem::path> Wine_Prefix();

/// Whether a path in the program's form begins with a drive, "C:".
bool Begins_With_Drive(std::string_view Path);

/// Where the Wine drive of this letter begins. Nothing when there is no such drive.
std::optional<std::filesystem::path> Wine_Drive(char Letter);
