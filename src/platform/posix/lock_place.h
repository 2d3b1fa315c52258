// platform/posix/lock_place.h - where the running instance leaves its marks.
#pragma once

#include <filesystem>
#include <optional>

/// The file of the one-instance lock: TERRAFOLD_LOCK, else one in the user's runtime directory,
/// else one of the user's own in the temporary directory.
std::optional<std::filesystem::path> Lock_File();
