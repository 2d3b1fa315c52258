// platform/win32/process.cpp - programs through CreateProcess.
#include "platform/process.h"

#include <windows.h>

#include <memory>
#include <mutex>
#include <string>

#include "platform/files.h"
#include "platform/system.h"
#include "platform/text1252.h"

namespace {

using Owned_Handle = std::unique_ptr<void, decltype(&CloseHandle)>;

Owned_Handle Own(HANDLE Handle) {
    return {Handle == INVALID_HANDLE_VALUE ? nullptr : Handle, &CloseHandle};
}

// A device with nothing to read, for a child to have.
Owned_Handle Empty_Input() {
    SECURITY_ATTRIBUTES Inherited{sizeof(SECURITY_ATTRIBUTES), nullptr, TRUE};
    return Own(CreateFileW(L"NUL", GENERIC_READ, FILE_SHARE_READ | FILE_SHARE_WRITE, &Inherited,
                           OPEN_EXISTING, 0, nullptr));
}

// Our standard error, for a child to have; empty when we have none.
Owned_Handle Error_Output() {
    HANDLE Copy = nullptr;
    const HANDLE Self = GetCurrentProcess(), Error = GetStdHandle(STD_ERROR_HANDLE);
    if (Error == nullptr || Error == INVALID_HANDLE_VALUE ||
        DuplicateHandle(Self, Error, Self, &Copy, 0, TRUE, DUPLICATE_SAME_ACCESS) == 0)
        return Own(nullptr);
    return Own(Copy);
}

// What is in it ends when its last handle is closed, be it by the end of this program.
Owned_Handle Job_For_One() {
    Owned_Handle Job = Own(CreateJobObjectW(nullptr, nullptr));
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION Limits{};
    Limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    if (Job)
        SetInformationJobObject(Job.get(), JobObjectExtendedLimitInformation, &Limits,
                                sizeof Limits);
    return Job;
}

std::mutex Running_Mutex;
HANDLE Running_Job = nullptr;

void Set_Running(HANDLE Job) {
    const std::lock_guard Held(Running_Mutex);
    Running_Job = Job;
}

}  // namespace

bool Process_Run(std::string_view Cmd_Line, bool Hidden) {
    if (Cmd_Line.find('\0') != std::string_view::npos) return false;
    Cmd_Line = Trim(Cmd_Line);
    if (Cmd_Line.empty()) return false;
    std::wstring Line = Path_From_Utf8(To_Utf8(Cmd_Line)).native();
    STARTUPINFOW Start{};
    Start.cb = sizeof Start;
    Start.dwFlags = STARTF_USESHOWWINDOW;
    Start.wShowWindow = Hidden ? SW_HIDE : SW_SHOWNORMAL;
    // Our standard output is read by other programs, so what a tool prints goes to standard
    // error. A program without one leaves the tool its own console.
    const Owned_Handle Input = Empty_Input(), Output = Error_Output();
    if (Output) {
        Start.dwFlags |= STARTF_USESTDHANDLES;
        Start.hStdInput = Input.get();
        Start.hStdOutput = Start.hStdError = Output.get();
    }
    PROCESS_INFORMATION Child{};
    constexpr DWORD Flags = NORMAL_PRIORITY_CLASS | CREATE_SUSPENDED;
    if (CreateProcessW(nullptr, Line.data(), nullptr, nullptr, TRUE, Flags, nullptr, nullptr,
                       &Start, &Child) == 0)
        return false;
    const Owned_Handle Job = Job_For_One();
    const Owned_Handle Process = Own(Child.hProcess), Thread = Own(Child.hThread);
    if (Job) AssignProcessToJobObject(Job.get(), Process.get());
    Set_Running(Job.get());
    ResumeThread(Thread.get());
    WaitForSingleObject(Process.get(), INFINITE);
    Set_Running(nullptr);
    return true;
}

bool Process_Can_Start(std::string_view Program) {
    return File_Exists(Program);
}

void Process_End_Running() {
    const std::lock_guard Held(Running_Mutex);
    if (Running_Job != nullptr) TerminateJobObject(Running_Job, 1);
}
