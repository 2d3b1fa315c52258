// platform/win32/instance_lock.cpp - a mutex of the user's session.
#include "platform/instance_lock.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "platform/system.h"

namespace {

// Behind the name space a "\\" may not stand.
std::wstring Lock_Name() {
    std::wstring Name = L"Terrafold";
    if (const auto Own = Env_Text("TERRAFOLD_LOCK")) Name = Path_From_Utf8(*Own).wstring();
    std::replace(Name.begin(), Name.end(), L'\\', L'/');
    return L"Local\\" + Name;
}

}  // namespace

struct Instance_Lock::Handle {
    explicit Handle(HANDLE Mutex) : Mutex(Mutex) {}
    ~Handle() { CloseHandle(Mutex); }
    Handle(const Handle&) = delete;
    Handle& operator=(const Handle&) = delete;

    HANDLE Mutex;
};

Instance_Lock::Instance_Lock() = default;
Instance_Lock::~Instance_Lock() = default;

// Whoever makes the mutex has the lock; it is gone when its last handle is.
bool Instance_Lock::Take() {
    if (Handle_) return true;
    const HANDLE Mutex = CreateMutexW(nullptr, FALSE, Lock_Name().c_str());
    const DWORD Error = GetLastError();
    if (Mutex == nullptr) return Error != ERROR_ACCESS_DENIED;
    auto Opened = std::make_unique<Handle>(Mutex);
    if (Error == ERROR_ALREADY_EXISTS) return false;
    Handle_ = std::move(Opened);
    return true;
}
