// platform/simulator_dir.h - where the simulator is installed on this computer.
#pragma once

#include <string>

/// The value "EXE Path" of HKEY_LOCAL_MACHINE "SoftWare\Microsoft\Microsoft GAMES\Flight
/// Simulator\9.0" on Windows. Elsewhere the environment variable TERRAFOLD_FSDIR, else that
/// value in the registry text of the Wine prefix. Empty when there is none. In the program's
/// form, as it was found: with or without a final backslash.
std::string Simulator_Dir();
