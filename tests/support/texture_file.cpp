// tests/support/texture_file.cpp - texture files made for a test.
#include "support/texture_file.h"

#include "support/bitmap_file.h"

std::string Texture_Bytes(const Texture_Spec& T) {
    const bool Masked = T.Compression == "masks";
    std::string Out = "BM" + Number_Bytes(0, 8) + Number_Bytes(T.Off, 4) + Number_Bytes(40, 4) +
                      Number_Bytes(T.Width, 4) + Number_Bytes(T.Height, 4) + Number_Bytes(1, 2) +
                      Number_Bytes(static_cast<std::uint32_t>(T.Bits), 2) +
                      (Masked ? Number_Bytes(3, 4) : T.Compression) + std::string(20, '\0');
    if (Masked)
        for (const std::uint32_t Mask : T.Masks) Out += Number_Bytes(Mask, 4);
    if (T.Bits == 8)
        for (int I = 0; I < 256; ++I) Out += Palette_Bytes(I);
    if (T.Off > Out.size()) Out += "FS70" + std::string(16, '\xEE');
    return Out + T.Pixels;
}

std::string Packed_Codes(const std::vector<std::uint32_t>& Codes) {
    std::string Out;
    std::size_t Bit = 0;
    for (const std::uint32_t Code : Codes)
        for (int I = 8; I >= 0; --I, ++Bit) {
            if (Bit % 8 == 0) Out += '\0';
            Out.back() = static_cast<char>(Out.back() | (Code >> I & 1) << (7 - Bit % 8));
        }
    return Out;
}
