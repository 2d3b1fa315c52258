// platform/win32/system.cpp - answers of Windows.
#include "platform/system.h"

#include <windows.h>

#include <array>
#include <exception>

#include "platform/paths.h"

namespace fs = std::filesystem;

std::optional<std::string> Env_Text(const char* Name) {
    const std::wstring Wide = Path_From_Utf8(Name).native();
    std::wstring Value(32767, L'\0');  // no variable is longer
    const DWORD Length =
        GetEnvironmentVariableW(Wide.c_str(), Value.data(), static_cast<DWORD>(Value.size()));
    if (Length == 0 || Length >= Value.size()) return std::nullopt;
    Value.resize(Length);
    return Utf8_From_Path(Value);
}

std::optional<std::string> Env_Program_Path(const char* Name) {
    const std::optional<std::string> Text = Env_Text(Name);
    if (!Text) return std::nullopt;
    return Program_Path(Path_From_Utf8(*Text)).value_or("");
}

fs::path Path_From_Utf8(const std::string& Text) {
    return std::u8string(Text.begin(), Text.end());
}

std::string Utf8_From_Path(const fs::path& Path) {
    try {
        const std::u8string Text = Path.u8string();
        return {Text.begin(), Text.end()};
    } catch (const std::exception&) {  // half a surrogate pair in a name
        return "\xFF";                 // no UTF-8 either
    }
}

std::optional<fs::path> Own_Program() {
    std::wstring Name(32768, L'\0');
    const DWORD Length = GetModuleFileNameW(nullptr, Name.data(), static_cast<DWORD>(Name.size()));
    if (Length == 0 || Length >= Name.size()) return std::nullopt;
    Name.resize(Length);
    return fs::path(Name);
}

std::optional<fs::path> User_Data_Dir() {
    const auto Named = Env_Text("LOCALAPPDATA");
    if (!Named) return std::nullopt;
    return Path_From_Utf8(*Named) / "Terrafold";
}

// The right to write is a matter of access lists, so only trying tells.
bool Dir_Writable(const fs::path& Dir) {
    std::array<wchar_t, MAX_PATH + 1> Name{};
    if (GetTempFileNameW(Dir.c_str(), L"tfw", 0, Name.data()) == 0) return false;
    DeleteFileW(Name.data());
    return true;
}

std::tm Local_Time(std::time_t Time) {
    std::tm Parts{};
    localtime_s(&Parts, &Time);
    return Parts;
}
