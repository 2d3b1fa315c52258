// core/within_memory.cpp - how the user is told.
#include "core/within_memory.h"

#include <string>

#include "core/host.h"
#include "core/program.h"

void Box_No_Memory(const char* English, const char* French) {
    Plain_Box(In_Language(English, French) +
              std::string(In_Language(" needs more memory than there is.",
                                      " demande plus de m\xE9moire qu'il n'y en a.")));
}
