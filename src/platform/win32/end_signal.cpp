// platform/win32/end_signal.cpp - a program with a window is asked to end by closing its window.
#include "platform/end_signal.h"

std::intptr_t End_Signals_Catch() {
    return -1;
}

int End_Signal_Status() {
    return 0;
}
