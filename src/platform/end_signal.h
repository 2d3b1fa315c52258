// platform/end_signal.h - the system asks the program to end.
#pragma once

#include <cstdint>

/// From now on such a request does not end the program at once. Gives the descriptor that can be
/// read when one has come; -1 where none comes that way.
std::intptr_t End_Signals_Catch();

/// The exit status that tells which request has come; 0 when none has.
int End_Signal_Status();
