// ui/dialogs/frm_dir.h - choosing a directory.
#pragma once

#include <string>

#include "core/numbers.h"
#include "core/resets.h"

/// What the chooser is told and what it tells.
struct Dir_Choice {
    std::string Dir_Title;  // set by the caller before each call
    std::string Dir_Path;
    Int Dir_Cancelled = 1;
};

inline Dir_Choice The_Dir_Choice;
inline std::string& Dir_Title = The_Dir_Choice.Dir_Title;
inline std::string& Dir_Path = The_Dir_Choice.Dir_Path;
inline Int& Dir_Cancelled = The_Dir_Choice.Dir_Cancelled;

/// Runs Frm_Dir modally from Path, or from App_Path when it is empty. Path is the directory
/// chosen, without a final backslash but for a root; it stays when Cancelled comes back as 1.
void Choose_Dir(std::string& Path, Int& Cancelled);

inline const bool Dir_Choice_Is_Reset = At_Reset([] { The_Dir_Choice = {}; });
