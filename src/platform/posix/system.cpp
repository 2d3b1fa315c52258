// platform/posix/system.cpp - answers of a POSIX system.
#include "platform/system.h"

#include <unistd.h>

#include <cstdlib>
#include <system_error>

#include "platform/paths.h"
#include "platform/posix/user_dirs.h"
#include "platform/text1252.h"

namespace fs = std::filesystem;

std::optional<std::string> Env_Text(const char* Name) {
    const char* Value = std::getenv(Name);
    if (Value == nullptr || *Value == '\0') return std::nullopt;
    return Value;
}

std::optional<std::string> Env_Program_Path(const char* Name) {
    const std::optional<std::string> Text = Env_Text(Name);
    if (!Text) return std::nullopt;
    if (Text->starts_with('\\') || Begins_With_Drive(*Text)) return From_Utf8(*Text).value_or("");
    return Program_Path(*Text).value_or("");
}

fs::path Path_From_Utf8(const std::string& Text) {
    return Text;
}

std::string Utf8_From_Path(const fs::path& Path) {
    return Path.native();
}

std::optional<fs::path> Own_Program() {
    std::error_code Error;
    fs::path Program = fs::read_symlink("/proc/self/exe", Error);
    if (Error) return std::nullopt;
    return Program;
}

std::optional<fs::path> User_Data_Dir() {
    const auto Named = Env_Text("XDG_DATA_HOME");
    if (Named && Named->front() == '/') return fs::path(*Named) / "terrafold";
    if (const auto Home = Home_Dir()) return *Home / ".local" / "share" / "terrafold";
    return std::nullopt;
}

bool Dir_Writable(const fs::path& Dir) {
    return access(Dir.c_str(), W_OK | X_OK) == 0;
}

std::tm Local_Time(std::time_t Time) {
    std::tm Parts{};
    localtime_r(&Time, &Parts);
    return Parts;
}
