// tex/pixels.cpp - rows of 8, 16, 24 and 32 bits a pixel.
#include "tex/pixels.h"

#include <algorithm>

namespace {

constexpr Px16 Backdrop{.Red = 0, .Green = 144, .Blue = 245};

// Value over the backdrop with Alpha of Most, rounded. Most is odd, so there is no half.
template <std::uint32_t Most>
Byte Blend(std::uint32_t Value, std::uint32_t Alpha, std::uint32_t Behind) {
    static_assert(Most % 2 == 1);
    return static_cast<Byte>((Value * Alpha + Behind * (Most - Alpha) + Most / 2) / Most);
}

Byte In_A_Byte(std::uint32_t Value) {
    return static_cast<Byte>(std::min<std::uint32_t>(Value, 255));
}

// Calls Each(source bytes, line of the picture) for every stored row.
template <typename F>
void For_Rows(const Stored_Pixels& From, std::size_t Pixel_Bytes, Picture& To, F&& Each) {
    const std::size_t Stride = (static_cast<std::size_t>(From.Width) * Pixel_Bytes + 3) / 4 * 4;
    for (Long Row = 0; Row < From.Height; ++Row)
        Each(From.Pixels.data() + static_cast<std::size_t>(Row) * Stride, Stored_Row(To, Row));
}

}  // namespace

Px16 Px16_Unpack(std::uint32_t Word, const Px16_Masks& Masks, Tex_Pixel Pixel) {
    const std::uint32_t R = Word & Masks.Red, G = Word & Masks.Green, B = Word & Masks.Blue;
    if (Pixel == Tex_Pixel::P444)
        return {.Red = In_A_Byte(R / 16),
                .Green = In_A_Byte(G),
                .Blue = In_A_Byte(B * 16),
                .Alpha = static_cast<Byte>(Word >> 12 & 15)};
    if (Pixel == Tex_Pixel::P555)
        return {.Red = In_A_Byte(R / 128), .Green = In_A_Byte(G / 4), .Blue = In_A_Byte(B * 8)};
    return {.Red = In_A_Byte(R / 256), .Green = In_A_Byte(G / 8), .Blue = In_A_Byte(B * 8)};
}

void Bmp8_To_Bmp24(const Stored_Pixels& From, Picture& To) {
    For_Rows(From, 1, To, [&](const Byte* In, Byte* Out) {
        for (Long X = 0; X < From.Width; ++X, Out += 3)
            std::copy_n(From.Palette.data() + std::size_t{4} * In[X], 3, Out);
    });
}

void Bmp16_To_Bmp24(const Stored_Pixels& From, Picture& To) {
    const bool Has_Alpha = From.Pixel == Tex_Pixel::P444;
    For_Rows(From, 2, To, [&](const Byte* In, Byte* Out) {
        for (Long X = 0; X < From.Width; ++X, In += 2, Out += 3) {
            const Px16 P = Px16_Unpack(In[0] | std::uint32_t{In[1]} << 8, From.Masks, From.Pixel);
            Out[0] = Has_Alpha ? Blend<15>(P.Blue, P.Alpha, Backdrop.Blue) : P.Blue;
            Out[1] = Has_Alpha ? Blend<15>(P.Green, P.Alpha, Backdrop.Green) : P.Green;
            Out[2] = Has_Alpha ? Blend<15>(P.Red, P.Alpha, Backdrop.Red) : P.Red;
        }
    });
}

// Padding goes along.
void Bmp24_To_Bmp24(const Stored_Pixels& From, Picture& To) {
    For_Rows(From, 3, To, [&](const Byte* In, Byte* Out) { std::copy_n(In, To.Stride, Out); });
}

void Bmp32_To_Bmp24(const Stored_Pixels& From, Picture& To) {
    For_Rows(From, 4, To, [&](const Byte* In, Byte* Out) {
        for (Long X = 0; X < From.Width; ++X, In += 4, Out += 3) {
            Out[0] = Blend<255>(In[0], In[3], Backdrop.Blue);
            Out[1] = Blend<255>(In[1], In[3], Backdrop.Green);
            Out[2] = Blend<255>(In[2], In[3], Backdrop.Red);
        }
    });
}
