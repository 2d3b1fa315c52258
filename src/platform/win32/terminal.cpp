// platform/win32/terminal.cpp - terminals that understand the control sequences.
#include "platform/terminal.h"

#include <windows.h>

bool Error_Is_Terminal() {
    DWORD Mode = 0;
    const HANDLE Error = GetStdHandle(STD_ERROR_HANDLE);
    if (GetConsoleMode(Error, &Mode) == 0) return false;
    return SetConsoleMode(Error, Mode | ENABLE_VIRTUAL_TERMINAL_PROCESSING) != 0;
}
