// platform/win32/paths.cpp - paths where the program's form is the system's.
#include "platform/paths.h"

#include <algorithm>
#include <system_error>

#include "platform/system.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

std::optional<fs::path> Native_Path(std::string_view Path) {
    if (Path.empty() || Path.find('\0') != std::string_view::npos) return std::nullopt;
    return Path_From_Utf8(To_Utf8(Path));
}

std::optional<std::string> Program_Path(const fs::path& Path) {
    if (Path.empty()) return std::nullopt;
    std::error_code Error;
    const fs::path Full = fs::absolute(Path, Error);
    if (Error) return std::nullopt;
    std::string Text = Utf8_From_Path(Full.lexically_normal());
    std::replace(Text.begin(), Text.end(), '/', '\\');
    return From_Utf8(Text);
}
