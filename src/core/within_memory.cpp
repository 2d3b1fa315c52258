// core/within_memory.cpp - how the user is told.
#include "core/within_memory.h"

#include "core/host.h"
#include "core/program.h"

std::string No_Memory_Text(const char* English, const char* French) {
    return In_Language(English, French) +
           std::string(In_Language(" needs more memory than there is.",
                                   " demande plus de m\xE9moire qu'il n'y en a."));
}

void Box_No_Memory(const char* English, const char* French) {
    Plain_Box(No_Memory_Text(English, French));
}
