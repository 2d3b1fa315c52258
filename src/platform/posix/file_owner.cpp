// platform/posix/file_owner.cpp - directories with the sticky bit.
#include "platform/file_owner.h"

#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>
#include <system_error>

#include "platform/paths.h"

bool File_Only_Its_Owner_Replaces(std::string_view Path) {
    const auto Native = Native_Path(Path);
    std::error_code Error;
    if (!Native) return false;
    const std::filesystem::path File = std::filesystem::canonical(*Native, Error);
    struct stat Of_File {
    }, Of_Dir{};
    if (Error || stat(File.c_str(), &Of_File) != 0 ||
        stat(File.parent_path().c_str(), &Of_Dir) != 0)
        return false;
    return (Of_Dir.st_mode & S_ISVTX) != 0 && Of_File.st_uid != geteuid() &&
           Of_Dir.st_uid != geteuid() && geteuid() != 0;
}
