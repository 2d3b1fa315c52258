// core/grid_colours.h - the colours that the grid can have.
#pragma once

#include <array>

#include "core/numbers.h"

/// No colour of its own: each pixel black or white, whichever is further from what was there.
inline constexpr Long Contrast_Colour = -1;

/// By Grid_Colour_Index, as 0xRRGGBB; the settings hold the index.
inline constexpr std::array<Long, 8> Grid_Colours{0xFFFFFF, 0xE0E0E0, 0xC0C0C0, 0xA0A0A0,
                                                  0x808080, 0x404040, 0x000000, Contrast_Colour};
inline constexpr Int Usual_Grid_Colour = 2;

/// Takes that colour, the usual one for an index that there is not.
void Grid_Colour_Take(Int Index);
