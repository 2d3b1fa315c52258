// tests/support/bitmap_file.cpp - bitmap files made for a test.
#include "support/bitmap_file.h"

#include <cstddef>

std::uint8_t Pixel_Byte(int X, int Y, int Channel) {
    const auto Place = static_cast<std::uint32_t>(Y) * 1'000'003U + static_cast<std::uint32_t>(X);
    const std::uint32_t Mixed = (Place * 3 + static_cast<std::uint32_t>(Channel)) * 2'654'435'761U;
    return static_cast<std::uint8_t>(Mixed >> 24 | 1);  // never 0, which stands for no map
}

std::string Palette_Bytes(int I) {
    std::string Out;
    for (const int Value : {I, 255 - I, I ^ 0x55, I / 2}) Out += static_cast<char>(Value);
    return Out;
}

std::string Number_Bytes(std::uint32_t Value, int Size) {
    std::string Out;
    for (int I = 0; I < Size; ++I, Value >>= 8) Out += static_cast<char>(Value);
    return Out;
}

std::string Bitmap_Bytes(const Bitmap_Spec& B) {
    const int Channels = B.Bits == 8 ? 1 : 3;
    const int Nb_Colours = B.Bits == 8 ? B.Nb_Colours : 0;
    const int Stride = (B.Width * Channels + 3) / 4 * 4;
    const int Pixels_At = 14 + B.Header_Size + 4 * Nb_Colours + B.Gap;
    const auto Number = [](int Value, int Size) {
        return Number_Bytes(static_cast<std::uint32_t>(Value), Size);
    };
    std::string Out = "BM" + Number(Pixels_At + Stride * B.Height, 4) + Number(0, 4);
    Out += Number(Pixels_At, 4) + Number(B.Header_Size, 4) + Number(B.Width, 4);
    Out += Number(B.Top_Down ? -B.Height : B.Height, 4) + Number(B.Planes, 2) + Number(B.Bits, 2);
    Out += Number(B.Compression, 4) + Number(0, 12);
    Out += Number(B.Colours_Told < 0 ? Nb_Colours : B.Colours_Told, 4) + Number(0, 4);
    Out.resize(static_cast<std::size_t>(14 + B.Header_Size), '\0');
    for (int I = 0; I < Nb_Colours; ++I) Out += Palette_Bytes(I);
    Out.append(static_cast<std::size_t>(B.Gap), '\xEE');
    for (int Line = 0; Line < B.Height; ++Line) {
        const int Y = B.Top_Down ? Line : B.Height - 1 - Line;
        for (int X = 0; X < B.Width; ++X)
            for (int C = 0; C < Channels; ++C) Out += static_cast<char>(Pixel_Byte(X, Y, C));
        Out.append(static_cast<std::size_t>(Stride - B.Width * Channels), '\xEE');
    }
    return Out;
}
