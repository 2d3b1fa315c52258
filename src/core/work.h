// core/work.h - a long work: how far it is, and whether the user has ended it.
//
// Routines at any depth tell how far they are; where no work is on, that has no effect.
#pragma once

#include <chrono>

#include "core/numbers.h"

/// Thrown where a work looks whether it was cancelled, and caught by whoever began it.
struct Work_Cancelled {};

inline constexpr Long Work_Whole = 1000;  // what the bar shows at the end

/// A work of Nb_Parts is on for the life of this object. The bar is the host's control of that
/// name; there is one work at a time.
class Work_Scope {
public:
    Work_Scope(const char* Bar, Long Nb_Parts);
    ~Work_Scope();
    Work_Scope(const Work_Scope&) = delete;
    Work_Scope& operator=(const Work_Scope&) = delete;
};

/// Whether a work is on, and for how long.
bool Work_Is_On();
std::chrono::duration<Double> Work_Time();

/// The next part begins.
void Work_Next_Part();
/// So much of the part, 0 to 1, is done; throws Work_Cancelled when the work is to end. Less than
/// before counts as that.
void Work_At(Double Share);
/// Throws Work_Cancelled when the work is to end.
void Work_Look();

/// The work is to end at its next look.
void Work_Cancel();
bool Work_Is_Cancelled();
