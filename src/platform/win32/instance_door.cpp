// platform/win32/instance_door.cpp - a mailslot of the user's session, a path a message.
#include "platform/instance_door.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "platform/system.h"

namespace {

std::wstring Door_Name() {
    std::wstring Name = L"Terrafold";
    if (const auto Own = Env_Text("TERRAFOLD_LOCK")) Name = Path_From_Utf8(*Own).wstring();
    std::replace_if(
        Name.begin(), Name.end(), [](wchar_t C) { return C == L'\\' || C == L':'; }, L'/');
    DWORD Session = 0;
    ProcessIdToSessionId(GetCurrentProcessId(), &Session);
    return L"\\\\.\\mailslot\\" + Name + L"." + std::to_wstring(Session);
}

}  // namespace

struct Instance_Door::Handle {
    explicit Handle(HANDLE Slot) : Slot(Slot) {}
    ~Handle() { CloseHandle(Slot); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE Slot;
};

Instance_Door::Instance_Door() {
    const HANDLE Slot = CreateMailslotW(Door_Name().c_str(), 0, 0, nullptr);
    if (Slot != INVALID_HANDLE_VALUE) Handle_ = std::make_unique<Handle>(Slot);
}

Instance_Door::~Instance_Door() = default;

std::optional<std::string> Instance_Door::Take() {
    DWORD Size = MAILSLOT_NO_MESSAGE, Read = 0;
    if (!Handle_ || GetMailslotInfo(Handle_->Slot, nullptr, &Size, nullptr, nullptr) == 0 ||
        Size == MAILSLOT_NO_MESSAGE)
        return std::nullopt;
    std::string Path(Size, '\0');
    if (ReadFile(Handle_->Slot, Path.data(), Size, &Read, nullptr) == 0 || Read != Size)
        return std::nullopt;
    return Path;
}

std::intptr_t Instance_Door::Descriptor() const {
    return -1;
}

bool Instance_Hand_Over(std::string_view Path) {
    if (Path.empty()) return false;
    const HANDLE Slot = CreateFileW(Door_Name().c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                    OPEN_EXISTING, FILE_ATTRIBUTE_NORMAL, nullptr);
    if (Slot == INVALID_HANDLE_VALUE) return false;
    DWORD Written = 0;
    const bool Sent =
        WriteFile(Slot, Path.data(), static_cast<DWORD>(Path.size()), &Written, nullptr) != 0;
    CloseHandle(Slot);
    return Sent && Written == Path.size();
}
