// tex/dxt.cpp - two colours and an index of two bits a pixel, block by block.
#include "tex/dxt.h"

#include <array>

namespace {

constexpr Px16_Masks Masks{.Red = 0xF800, .Green = 0x07E0, .Blue = 0x001F};

using Colours = std::array<std::uint32_t, 4>;  // blue in the lowest byte, then green, red, 0

std::uint32_t Packed(const Px16& P) {
    return P.Blue | std::uint32_t{P.Green} << 8 | std::uint32_t{P.Red} << 16;
}

// Channel by channel. A third is never a half, so adding 1 rounds it.
Px16 Third_Way(const Px16& A, const Px16& B) {
    const auto Mix = [](std::uint32_t X, std::uint32_t Y) {
        return static_cast<Byte>((2 * X + Y + 1) / 3);
    };
    return {.Red = Mix(A.Red, B.Red), .Green = Mix(A.Green, B.Green), .Blue = Mix(A.Blue, B.Blue)};
}

// Unpacked values are even, so the half is whole.
Px16 Half_Way(const Px16& A, const Px16& B) {
    const auto Mix = [](std::uint32_t X, std::uint32_t Y) {
        return static_cast<Byte>((X + Y) / 2);
    };
    return {.Red = Mix(A.Red, B.Red), .Green = Mix(A.Green, B.Green), .Blue = Mix(A.Blue, B.Blue)};
}

Colours Colours_Of(const Byte* Block) {
    const std::uint32_t C0 = Block[0] | std::uint32_t{Block[1]} << 8;
    const std::uint32_t C1 = Block[2] | std::uint32_t{Block[3]} << 8;
    const Px16 A = Px16_Unpack(C0, Masks, Tex_Pixel::P565);
    const Px16 B = Px16_Unpack(C1, Masks, Tex_Pixel::P565);
    if (C0 > C1) return {Packed(A), Packed(B), Packed(Third_Way(A, B)), Packed(Third_Way(B, A))};
    return {Packed(A), Packed(B), Packed(Half_Way(A, B)), 0};
}

void Put_4(Byte* To, std::uint32_t Value) {
    To[0] = static_cast<Byte>(Value);
    To[1] = static_cast<Byte>(Value >> 8);
    To[2] = static_cast<Byte>(Value >> 16);
    To[3] = static_cast<Byte>(Value >> 24);
}

// Four pixels, whose indices begin in the lowest bits, are twelve bytes.
void Put_Row(Byte* To, const Colours& C, Byte Indices) {
    const std::uint32_t P0 = C[Indices & 3], P1 = C[Indices >> 2 & 3];
    const std::uint32_t P2 = C[Indices >> 4 & 3], P3 = C[Indices >> 6];
    Put_4(To, P0 | P1 << 24);
    Put_4(To + 4, P1 >> 8 | P2 << 16);
    Put_4(To + 8, P2 >> 16 | P3 << 8);
}

void Put_Blocks(const Stored_Pixels& From, std::size_t Block_Size, std::size_t Colours_At,
                Picture& To) {
    const Byte* Block = From.Pixels.data() + Colours_At;
    for (Long Y = 0; Y < From.Height; Y += 4) {
        std::array<Byte*, 4> Row{};
        for (Long R = 0; R < 4; ++R) Row[static_cast<std::size_t>(R)] = Stored_Row(To, Y + R);
        for (Long X = 0; X < From.Width; X += 4, Block += Block_Size) {
            const Colours C = Colours_Of(Block);
            for (std::size_t R = 0; R < 4; ++R, Row[R - 1] += 12) Put_Row(Row[R], C, Block[4 + R]);
        }
    }
}

}  // namespace

void Dxt1_To_Bmp24(const Stored_Pixels& From, Picture& To) {
    Put_Blocks(From, 8, 0, To);
}

void Dxt3_To_Bmp24(const Stored_Pixels& From, Picture& To) {
    Put_Blocks(From, 16, 8, To);
}
