// platform/win32/memory.cpp - the system has no such switch.
#include "platform/memory.h"

void Keep_Freed_Memory() {}
