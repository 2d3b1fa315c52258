// core/journal.h - the steps of the open project on disk, so that a crash loses none of them.
#pragma once

#include <string>

#include "core/step.h"

/// How a step came about.
struct Step_Flags {
    bool Joins_Last = false;  // it is one with the step before it
    bool Is_Undo = false;
    bool Is_Redo = false;
};

/// Appends a step.
void Journal_Step(const std::string& Bytes, Step_Kind Kind, Step_Flags Flags);
