// tests/support/texture_file.cpp - texture files made for a test.
#include "support/texture_file.h"

#include <algorithm>
#include <array>
#include <random>

#include "support/bitmap_file.h"

namespace {

constexpr std::size_t R8_Size = 65'536;
constexpr std::uint32_t End_Code = 511;

// Runs of 1 to 127, literals of 0 to 127, and bytes that are skipped.
std::string With_Runs(std::string_view Indices, std::mt19937& Random) {
    std::string Out;
    for (std::size_t I = 0; I < Indices.size();) {
        if (Random() % 64 == 0) Out += {'\0', static_cast<char>(Random())};
        std::size_t Same = I;
        while (Same < Indices.size() && Same - I < 127 && Indices[Same] == Indices[I]) ++Same;
        const std::size_t Most = std::min<std::size_t>(Indices.size() - I, 127);
        const std::size_t Run = Same - I,
                          Literal = Random() % (std::min<std::size_t>(Most, 40) + 1);
        if (Run > 2 || Random() % 8 == 0) {
            Out += {static_cast<char>(Run), Indices[I]};
            I += Run;
        } else {
            Out += static_cast<char>(128 + Literal);
            Out += Indices.substr(I, Literal);
            I += Literal;
        }
    }
    return Out;
}

// Every second code is a literal; the ones between may name a pair that came before.
std::vector<std::uint32_t> Codes_Of(std::string_view Text) {
    std::array<std::string, 256> Known;
    std::size_t Next = 0;
    std::vector<std::uint32_t> Codes;
    for (std::size_t I = 0; I < Text.size();) {
        std::size_t Best = 256;
        for (std::size_t K = 0; K < 255; ++K)
            if (!Known[K].empty() && Text.substr(I).starts_with(Known[K]) &&
                (Best == 256 || Known[K].size() > Known[Best].size()))
                Best = K;
        std::string Pair = Best < 256 ? Known[Best] : std::string(1, Text[I]);
        Codes.push_back(Best < 256 ? 256 + static_cast<std::uint32_t>(Best)
                                   : static_cast<unsigned char>(Text[I]));
        I += Pair.size();
        if (I == Text.size()) break;
        Codes.push_back(static_cast<unsigned char>(Text[I]));
        Pair += Text[I++];
        Known[Next] = Pair.size() < 7 ? Pair : "";
        if (Pair.size() < 7)
            Next = (Next + 1) % 256;
        else if (Next == 255)
            Known[Next = 0].clear();
    }
    Codes.push_back(End_Code);
    return Codes;
}

}  // namespace

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

std::string Compressed_R8(std::string_view Indices, unsigned Seed) {
    std::mt19937 Random(Seed);
    return Packed_Codes(Codes_Of(With_Runs(Indices, Random) + "\x7F"));  // the last is not read
}

std::string R8_Indices(unsigned Seed) {
    std::mt19937 Random(Seed);
    std::string Out;
    while (Out.size() < R8_Size) {
        const std::size_t Nb = Random() % 300 + 1;
        if (Random() % 3 != 0)
            Out.append(Nb, static_cast<char>(Random()));
        else if (Random() % 4 != 0)
            for (std::size_t I = 0; I < Nb; ++I) Out += "TEXTURES"[I % (Nb % 7 + 2)];
        else
            for (std::size_t I = 0; I < Nb / 8; ++I) Out += static_cast<char>(Random());
    }
    Out.resize(R8_Size);
    return Out;
}
