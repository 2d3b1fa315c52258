// platform/simulator_dir.h - where the simulator is installed on this computer.
#pragma once

#include <string>

/// The environment variable TERRAFOLD_FSDIR, else what the registry says. Empty when there is
/// none. In the program's form, as it was found: with or without a final backslash.
std::string Simulator_Dir();

/// The value "EXE Path" of HKEY_LOCAL_MACHINE "SoftWare\Microsoft\Microsoft GAMES\Flight
/// Simulator\9.0" in the registry of 32-bit programs; on a POSIX system that of the Wine prefix.
std::string Registered_Simulator_Dir();
