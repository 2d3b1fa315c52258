// platform/posix/user_dirs.cpp - what the environment says about the user.
#include "platform/posix/user_dirs.h"

#include <pwd.h>
#include <unistd.h>

#include <string>
#include <system_error>

#include "platform/system.h"

namespace fs = std::filesystem;

std::optional<fs::path> Home_Dir() {
    if (const auto Home = Env_Text("HOME")) return fs::path(*Home);
    const passwd* User = getpwuid(getuid());
    if (User == nullptr || User->pw_dir == nullptr || *User->pw_dir == '\0') return std::nullopt;
    return fs::path(User->pw_dir);
}

std::optional<fs::path> Wine_Prefix() {
    if (const auto Prefix = Env_Text("WINEPREFIX")) return fs::path(*Prefix);
    if (const auto Home = Home_Dir()) return *Home / ".wine";
    return std::nullopt;
}

bool Begins_With_Drive(std::string_view Path) {
    if (Path.size() < 2 || Path[1] != ':') return false;
    return (Path[0] >= 'A' && Path[0] <= 'Z') || (Path[0] >= 'a' && Path[0] <= 'z');
}

std::optional<fs::path> Wine_Drive(char Letter) {
    const std::optional<fs::path> Prefix = Wine_Prefix();
    if (!Prefix) return std::nullopt;
    const char Small = static_cast<char>(Letter | 0x20);
    std::error_code Error;
    fs::path Drive = fs::canonical(*Prefix / "dosdevices" / (std::string(1, Small) + ":"), Error);
    if (Error || !fs::is_directory(Drive, Error)) return std::nullopt;
    return Drive;
}
