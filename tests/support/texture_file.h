// tests/support/texture_file.h - texture files made for a test.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

/// A bitmap texture. A file whose pixels begin 20 bytes late has the simulator's own block.
struct Texture_Spec {
    int Bits = 16;
    std::string Compression = std::string(4, '\0');  // four characters, or "masks"
    std::uint32_t Off = 54;
    std::uint32_t Width = 4, Height = 4;
    std::string Pixels;                                           // all stored rows
    std::vector<std::uint32_t> Masks = {0xF800, 0x07E0, 0x001F};  // of "masks"
};

std::string Texture_Bytes(const Texture_Spec& T);

/// Codes of 9 bits, the highest first, with zeros up to a whole byte.
std::string Packed_Codes(const std::vector<std::uint32_t>& Codes);
