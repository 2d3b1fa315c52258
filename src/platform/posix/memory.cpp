// platform/posix/memory.cpp - the switches of the GNU library.
#include "platform/memory.h"

#include <cstdlib>  // tells which library it is

#ifdef __GLIBC__
#include <malloc.h>

#include <limits>

void Keep_Freed_Memory() {
    constexpr int Growth = 64 << 20;  // bytes taken from the system at a time
    mallopt(M_MMAP_MAX, 0);           // large blocks too come from the heap
    mallopt(M_TRIM_THRESHOLD, std::numeric_limits<int>::max());
    mallopt(M_TOP_PAD, Growth);
}
#else
void Keep_Freed_Memory() {}
#endif
