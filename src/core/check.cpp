// core/check.cpp - how a fault of the program ends it.
#include "core/check.h"

#include <cstdio>
#include <cstdlib>

void Check_Failed(const char* What, const char* File, int Line) {
    std::fprintf(stderr, "Terrafold stopped: %s (%s:%d)\n", What, File, Line);
    std::abort();
}
