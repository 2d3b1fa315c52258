// platform/win32/paths.cpp - paths where the program's form is the system's.
#include "platform/paths.h"

#include <windows.h>

#include <algorithm>
#include <system_error>

#include "platform/system.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

namespace {

// A directory's path does without a final divider: some calls know no file of such a name.
fs::path Without_Last_Divider(const fs::path& Path) {
    return Path.has_relative_path() && !Path.has_filename() ? Path.parent_path() : Path;
}

}  // namespace

std::optional<fs::path> Native_Path(std::string_view Path) {
    if (Path.empty() || Path.find('\0') != std::string_view::npos) return std::nullopt;
    std::error_code Error;
    const fs::path Full = fs::absolute(Path_From_Utf8(To_Utf8(Path)), Error);
    if (Error) return std::nullopt;
    return Without_Last_Divider(Full.lexically_normal());
}

std::optional<std::string> Program_Path(const fs::path& Path) {
    if (Path.empty()) return std::nullopt;
    std::error_code Error;
    const fs::path Full = fs::absolute(Path, Error);
    if (Error) return std::nullopt;
    const wchar_t Last = Path.native().back();
    std::string Text = Utf8_From_Path(Without_Last_Divider(Full.lexically_normal()));
    if ((Last == L'/' || Last == L'\\') && !Text.ends_with('\\')) Text += '\\';
    std::replace(Text.begin(), Text.end(), '/', '\\');
    return From_Utf8(Text);
}

std::string Shown_Path(std::string_view Path) {
    return std::string(Path);
}

std::vector<std::string> Drive_List() {
    const DWORD Drives_There = GetLogicalDrives();
    std::vector<std::string> Drives;
    for (char Letter = 'A'; Letter <= 'Z'; ++Letter)
        if ((Drives_There >> (Letter - 'A') & 1U) != 0) Drives.push_back({Letter, ':', '\\'});
    return Drives;
}
