// core/journal.cpp
#include "core/journal.h"

void Journal_Step(const std::string&, Step_Kind, Step_Flags) {}
