// tex/texture_layout.h - the bitmap layouts of textures, and which of them a file has.
#pragma once

#include <cstddef>
#include <cstdint>

#include "tex/pixels.h"

/// One row of the table. An extended texture has a block of 20 bytes in front of its pixels.
struct Texture_Layout {
    Int Bits = 0;                   // as the header tells them
    std::uint32_t Compression = 0;  // as the header tells it
    std::uint32_t Off = 0;          // where the pixels begin
    bool Extended = false;
    Tex_Pixel Pixel = Tex_Pixel::None;  // a blue mask below 16 makes 4-4-4 of 5-6-5
    Int Stored_Bits =
        0;  // of a pixel as the file holds it; a row fills whole 4 bytes, blocks do not
    void (*To_Bmp24)(const Stored_Pixels&, Picture&) = nullptr;

    bool In_Blocks() const { return Pixel == Tex_Pixel::Dxt1 || Pixel == Tex_Pixel::Dxt3; }
    /// Bytes of the pixels of a picture.
    std::size_t Size_Of(Long Width, Long Height) const;
};

inline constexpr std::size_t Bitmap_Headers_Size = 54;
inline constexpr std::size_t Largest_Texture_Head = 1098;  // all that can stand in front of pixels
inline constexpr Long Largest_Texture_Side = 8192;         // pixels

/// The layout of a file that begins with Head and "BM"; nullptr when it is none of the table, or
/// the picture's size can't be. Size and what Head holds besides go to P.
const Texture_Layout* Texture_Layout_Of(std::span<const Byte> Head, Stored_Pixels& P);
