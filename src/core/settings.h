// core/settings.h - the program's settings and the list of recent projects.
//
// Settings stand in Ini_File, section [Terrafold]. Values are trimmed.
#pragma once

#include <string>
#include <string_view>

#include "core/numbers.h"

/// Reads all settings into program.h. A DirFS that does not exist is dropped; without one the
/// simulator is looked for on this computer, and its directory kept as DirFS when it holds a
/// directory Scenery.
void Read_Settings();

/// Reads what was chosen of the view in former runs.
void Read_View_Settings();

/// The simulator's directory as this computer knows it, with a final backslash; "" when there is
/// none, or none that holds a directory Scenery.
std::string Simulator_Found();

/// One setting; "" when it is absent.
std::string Setting_Get(std::string_view Key);

/// Writes one setting. False when the file cannot be written.
bool Setting_Put(std::string_view Key, std::string_view Value);

/// Mode 1 puts Path at the head of DerApt, Mode 2 takes it out. Paths are compared in
/// capitals, an empty Path changes nothing. A change is written to Ini_File and to the captions
/// of the menu items Mnu_File_Prec(0) to (3).
void Recent_Update(std::string_view Path, Int Mode);
