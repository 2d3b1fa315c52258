// platform/paths.cpp - what holds for paths on every system.
#include "platform/paths.h"

#include "platform/files.h"

namespace {

std::size_t Name_Begin(std::string_view Path) {
    const std::size_t Last = Path.rfind('\\');
    return Last == std::string_view::npos ? 0 : Last + 1;
}

}  // namespace

std::string_view Path_Dir(std::string_view Path) {
    return Path.substr(0, Name_Begin(Path));
}

std::string_view Path_Name(std::string_view Path) {
    return Path.substr(Name_Begin(Path));
}

std::string File_Locate(std::string_view Path, std::string_view Beside) {
    if (File_Exists(Path)) return std::string(Path);
    std::string Near(Path_Dir(Beside));
    Near += Path_Name(Path);
    return File_Exists(Near) ? Near : std::string(Path);
}
