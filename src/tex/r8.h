// tex/r8.h - R8 textures: 256 by 256 indices of the palette, as they are or compressed.
#pragma once

#include <span>
#include <vector>

#include "core/palette.h"
#include "tex/picture.h"

inline constexpr Long R8_Side = 256;
inline constexpr std::size_t R8_Size = std::size_t{256} * 256;

/// Expands a compressed R8: codes of 9 bits, over a dictionary, over lengths of runs. False, and
/// Indices is of no use, unless the codes end as they must and give exactly R8_Size bytes.
bool R8_Expand(std::span<const Byte> File, std::vector<Byte>& Indices);

/// R8_Size indices to a picture of 256 by 256; the first row is the picture's lowest line.
void R8_To_Bmp(std::span<const Byte> Indices, const Palette& Pal, Picture& To);
