// core/settings.h - the program's settings and the list of recent projects.
//
// Settings stand in Ini_File, section [Terrafold]. Values are trimmed.
#pragma once

#include <string_view>

#include "core/numbers.h"

/// Reads all settings; looks for the simulator on the computer when DirFS is empty.
void Read_Settings();

/// Writes one setting. False when the file cannot be written.
bool Setting_Put(std::string_view Key, std::string_view Value);

/// Mode 1 puts Path at the head of DerApt, Mode 2 takes it out. Paths are compared in
/// capitals. A change is written to Ini_File and to the captions of Mnu_File_Prec 0 to 3.
void Recent_Update(std::string_view Path, Int Mode);
