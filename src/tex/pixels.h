// tex/pixels.h - stored rows of pixels to rows of 24 bits.
//
// A converter gets the pixels of a file, from the first stored row to the last, and fills a
// picture of the same size; the first stored row is the picture's lowest line. Sizes are the
// caller's to see to: From.Pixels holds what the layout needs.
#pragma once

#include <cstdint>
#include <span>

#include "core/numbers.h"
#include "tex/picture.h"

/// How the pixels of a 16-bit texture are packed.
enum class Tex_Pixel { None = 0, P444 = 4, P555 = 5, P565 = 6, Dxt1 = 7, Dxt3 = 8 };

struct Px16_Masks {
    std::uint32_t Red = 0x7C00, Green = 0x03E0, Blue = 0x001F;
};

/// Pixels of a texture as its file holds them.
struct Stored_Pixels {
    Long Width = 0, Height = 0;
    std::span<const Byte> Pixels;
    Tex_Pixel Pixel = Tex_Pixel::None;
    Px16_Masks Masks;               // in 16 bits
    std::span<const Byte> Palette;  // in 8 bits: 256 times blue, green, red and a byte more
};

void Bmp8_To_Bmp24(const Stored_Pixels& From, Picture& To);
void Bmp16_To_Bmp24(const Stored_Pixels& From, Picture& To);
void Bmp24_To_Bmp24(const Stored_Pixels& From, Picture& To);
void Bmp32_To_Bmp24(const Stored_Pixels& From, Picture& To);

struct Px16 {
    Byte Red = 0, Green = 0, Blue = 0;
    Byte Alpha = 0;  // 0 to 15, in 4-4-4 alone
};

/// The values of a 16-bit pixel. Their low bits stay 0; a value that odd masks drive past a
/// byte is 255.
Px16 Px16_Unpack(std::uint32_t Word, const Px16_Masks& Masks, Tex_Pixel Pixel);

/// The line of To that row Row of a file becomes.
inline Byte* Stored_Row(Picture& To, Long Row) {
    return To.Bytes.data() + static_cast<std::size_t>(To.Height - 1 - Row) * To.Stride;
}
