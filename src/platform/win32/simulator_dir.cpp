// platform/win32/simulator_dir.cpp - the simulator by the registry.
#include "platform/simulator_dir.h"

#include <windows.h>

#include <string>

#include "platform/system.h"
#include "platform/text1252.h"

namespace {

std::string Text_Value(HKEY Key, const wchar_t* Name) {
    DWORD Type = 0, Bytes = 0;
    if (RegQueryValueExW(Key, Name, nullptr, &Type, nullptr, &Bytes) != ERROR_SUCCESS ||
        Type != REG_SZ)
        return "";
    std::wstring Value(Bytes / sizeof(wchar_t) + 1, L'\0');
    Bytes = static_cast<DWORD>(Value.size() * sizeof(wchar_t));
    auto* Room = reinterpret_cast<BYTE*>(Value.data());
    if (RegQueryValueExW(Key, Name, nullptr, &Type, Room, &Bytes) != ERROR_SUCCESS) return "";
    Value.resize(Value.find(L'\0') == std::wstring::npos ? Value.size() : Value.find(L'\0'));
    return From_Utf8(Utf8_From_Path(Value)).value_or("");
}

}  // namespace

std::string Registered_Simulator_Dir() {
    HKEY Key = nullptr;
    // The simulator is a 32-bit program and wrote its key where those do.
    if (RegOpenKeyExW(HKEY_LOCAL_MACHINE,
                      L"SoftWare\\Microsoft\\Microsoft GAMES\\Flight Simulator\\9.0", 0,
                      KEY_QUERY_VALUE | KEY_WOW64_32KEY, &Key) != ERROR_SUCCESS)
        return "";
    std::string Dir = Text_Value(Key, L"EXE Path");
    RegCloseKey(Key);
    return Dir;
}
