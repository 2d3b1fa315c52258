// core/palette.h - the palette of the simulator's own textures, which a file beside the program
// holds: 256 colours of red, green, blue.
#pragma once

#include <array>
#include <string_view>

#include "core/program.h"

using Palette = std::array<Palette_Entry, 256>;

/// Reads a palette file. False, and Into stays, unless Path is a file of exactly 768 bytes.
bool Pal_Read(std::string_view Path, Palette& Into);

/// Pal_Fs5 from the file in App_Path. Without a whole one it holds greys, which
/// Pal_Tell_If_Lacking tells of.
void Pal_Load();

/// Tells the user, the first time in a run, that Pal_Fs5 is none of the simulator's.
void Pal_Tell_If_Lacking();
