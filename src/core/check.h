// core/check.h - the program's own faults.
//
// A fault of the user or of a file is a message; a fault of the program stops it, in every
// build, before it can spoil a project.
#pragma once

/// Prints What and where it was asked to standard error and aborts.
[[noreturn]] void Check_Failed(const char* What, const char* File, int Line);

/// Stops the program unless Holds. File and Line are the caller's and are never given.
inline void Check(bool Holds, const char* What, const char* File = __builtin_FILE(),
                  int Line = __builtin_LINE()) {
    if (!Holds) [[unlikely]]
        Check_Failed(What, File, Line);
}
