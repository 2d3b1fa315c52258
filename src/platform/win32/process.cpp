// platform/win32/process.cpp - programs through CreateProcess.
#include "platform/process.h"

#include <windows.h>

#include <string>

#include "platform/system.h"
#include "platform/text1252.h"

bool Process_Run(std::string_view Cmd_Line, bool Hidden) {
    if (Cmd_Line.find('\0') != std::string_view::npos) return false;
    std::wstring Line = Path_From_Utf8(To_Utf8(Cmd_Line)).native();
    STARTUPINFOW Start{};
    Start.cb = sizeof Start;
    Start.dwFlags = STARTF_USESHOWWINDOW;
    Start.wShowWindow = Hidden ? SW_HIDE : SW_SHOWNORMAL;
    PROCESS_INFORMATION Child{};
    if (CreateProcessW(nullptr, Line.data(), nullptr, nullptr, TRUE, NORMAL_PRIORITY_CLASS, nullptr,
                       nullptr, &Start, &Child) == 0)
        return false;
    CloseHandle(Child.hThread);
    WaitForSingleObject(Child.hProcess, INFINITE);
    CloseHandle(Child.hProcess);
    return true;
}
