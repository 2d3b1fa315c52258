// tests/support/bitmap_file.h - bitmap files made for a test, with pixels that tell their place.
#pragma once

#include <cstdint>
#include <string>

struct Bitmap_Spec {
    int Width = 1, Height = 1;
    int Bits = 24;
    bool Top_Down = false;
    int Header_Size = 40;   // of the information header; longer ones end in zeros
    int Nb_Colours = 256;   // palette entries that the file has, in 8 bits
    int Colours_Told = -1;  // of biClrUsed, -1 for Nb_Colours
    int Gap = 0;            // bytes between the headers and the pixels
    int Compression = 0;
    int Planes = 1;
};

/// The byte Channel (0 in 8 bits; blue, green, red) of the pixel in column X and row Y from the
/// top. Neighbours differ, and so do pixels a tile apart.
std::uint8_t Pixel_Byte(int X, int Y, int Channel);

/// The four bytes of entry I of the palette.
std::string Palette_Bytes(int I);

/// A whole bitmap file. Depths other than 8 and 24 get the pixels of 24 bits.
std::string Bitmap_Bytes(const Bitmap_Spec& B);

/// Value as Size bytes, the lowest first.
std::string Number_Bytes(std::uint32_t Value, int Size);
