// platform/paths.h - paths in the program's form and in the system's.
//
// The program writes a path as its files hold it: parts divided by "\", code page 1252, with
// or without a drive letter. Letters' case does not matter when a file is looked for. On a
// POSIX system "\home\me" is "/home/me", and a drive letter is the drive of that letter of the
// Wine prefix (WINEPREFIX, else ~/.wine); without one nothing exists there.
#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// The file or directory that Path names, ignoring case where the exact name is absent; the
/// path it would have when it does not exist. "/" divides parts as well, "." and ".." are
/// resolved, and a path without a root goes from the current directory. Nothing when it can't
/// exist here: an unknown drive, an empty path, one that holds a zero character.
std::optional<std::filesystem::path> Native_Path(std::string_view Path);

/// The program's form of a path of the system, made absolute; it ends in "\" where that ended
/// in a divider. Nothing when code page 1252 can't write it or a name in it holds a "\".
std::optional<std::string> Program_Path(const std::filesystem::path& Path);

/// Path as people on this system write it, in code page 1252: the system's form of one with a root
/// that can exist here, ending in a divider where Path does. Files and the command lines of tools
/// keep the program's form.
std::string Shown_Path(std::string_view Path);

/// The roots from which directories are chosen, each ending in "\\": the drives, and on a POSIX
/// system "\\" before those of the Wine prefix.
std::vector<std::string> Drive_List();

/// The directory part of Path with its final "\", and the rest; "" and Path without a "\".
std::string_view Path_Dir(std::string_view Path);
std::string_view Path_Name(std::string_view Path);

/// Path if such a file exists; else the file of the same name in the directory of Beside, as
/// when a project comes from another computer; else Path.
std::string File_Locate(std::string_view Path, std::string_view Beside);
