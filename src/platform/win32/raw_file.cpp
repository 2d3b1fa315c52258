// platform/win32/raw_file.cpp - files as handles.
#include "platform/raw_file.h"

#include <windows.h>

#include <algorithm>

namespace fs = std::filesystem;

namespace {

HANDLE Handle_Of(std::intptr_t Value) {
    return reinterpret_cast<HANDLE>(Value);
}

}  // namespace

bool Raw_File::Create(const fs::path& Path) {
    Close();
    const HANDLE Made = CreateFileW(Path.c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    CREATE_NEW, FILE_ATTRIBUTE_NORMAL, nullptr);
    Handle_ = reinterpret_cast<std::intptr_t>(Made);  // INVALID_HANDLE_VALUE is -1
    return Is_Open();
}

bool Raw_File::Open(const fs::path& Path) {
    Close();
    const HANDLE Opened = CreateFileW(Path.c_str(), FILE_APPEND_DATA, FILE_SHARE_READ, nullptr,
                                      OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    Handle_ = reinterpret_cast<std::intptr_t>(Opened);
    return Is_Open();
}

// Whoever writes to a file shares it with readers alone.
bool Raw_File::Lock() {
    return Is_Open();
}

// None can take it away from an open file.
bool Raw_File::Is_At(const fs::path&) const {
    return Is_Open();
}

// A new file inherits the rights of its directory, as the old one did.
void Raw_File::Take_Rights_Of(const fs::path&) {}

bool Raw_File::Write(std::string_view Bytes) {
    while (!Bytes.empty()) {
        const auto Part = static_cast<DWORD>(std::min<std::size_t>(Bytes.size(), 1U << 24));
        DWORD Done = 0;
        if (WriteFile(Handle_Of(Handle_), Bytes.data(), Part, &Done, nullptr) == 0 || Done == 0)
            return false;
        Bytes.remove_prefix(Done);
    }
    return true;
}

bool Raw_File::Sync() {
    return FlushFileBuffers(Handle_Of(Handle_)) != 0;
}

// No file that is open can be renamed.
bool Raw_File::Replace(const fs::path& From, const fs::path& To) {
    return Close() && MoveFileExW(From.c_str(), To.c_str(),
                                  MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH) != 0;
}

// No file that is open can be deleted, be it another program's.
void Raw_File::Delete(const fs::path& Path) {
    if (Close()) DeleteFileW(Path.c_str());
}

bool Raw_File::Close() {
    if (!Is_Open()) return true;
    const HANDLE Open = Handle_Of(Handle_);
    Handle_ = None;
    return CloseHandle(Open) != 0;
}

bool File_Replaceable(const fs::path& Path) {
    const DWORD Attributes = GetFileAttributesW(Path.c_str());
    if (Attributes == INVALID_FILE_ATTRIBUTES) return GetLastError() == ERROR_FILE_NOT_FOUND;
    return (Attributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_READONLY)) == 0;
}

// MOVEFILE_WRITE_THROUGH has seen to it.
void Dir_Sync(const fs::path&) {}

// The standard library's answer here is in whole seconds.
std::optional<std::int64_t> File_Changed_At(const fs::path& Path) {
    WIN32_FILE_ATTRIBUTE_DATA Facts{};
    if (GetFileAttributesExW(Path.c_str(), GetFileExInfoStandard, &Facts) == 0) return std::nullopt;
    return static_cast<std::int64_t>(Facts.ftLastWriteTime.dwHighDateTime) << 32 |
           Facts.ftLastWriteTime.dwLowDateTime;
}
