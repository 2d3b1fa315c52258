// tex/texture_layout.cpp - the table of layouts and the search in it.
#include "tex/texture_layout.h"

#include <algorithm>
#include <array>
#include <string_view>

#include "tex/dxt.h"

namespace {

constexpr std::uint32_t Tag(std::string_view Four) {
    std::uint32_t Value = 0;
    for (std::size_t I = 0; I < 4; ++I)
        Value |= std::uint32_t{static_cast<unsigned char>(Four[I])} << (8 * I);
    return Value;
}

constexpr std::uint32_t Plain = 0, Masked = 3;
constexpr std::size_t Block_Size = 20;

constexpr std::array<Texture_Layout, 11> Layouts{{
    {8, Plain, 1078, false, Tex_Pixel::None, 8, Bmp8_To_Bmp24},
    {8, Plain, 1098, true, Tex_Pixel::None, 8, Bmp8_To_Bmp24},
    {16, Plain, 54, false, Tex_Pixel::P555, 16, Bmp16_To_Bmp24},
    {16, Plain, 74, true, Tex_Pixel::P555, 16, Bmp16_To_Bmp24},
    {16, Masked, 66, false, Tex_Pixel::P565, 16, Bmp16_To_Bmp24},
    {16, Masked, 86, true, Tex_Pixel::P565, 16, Bmp16_To_Bmp24},
    {16, Tag("DXT1"), 74, true, Tex_Pixel::Dxt1, 4, Dxt1_To_Bmp24},
    {16, Tag("DXT3"), 74, true, Tex_Pixel::Dxt3, 8, Dxt3_To_Bmp24},
    {24, Plain, 54, false, Tex_Pixel::None, 24, Bmp24_To_Bmp24},
    {32, Plain, 54, false, Tex_Pixel::None, 32, Bmp32_To_Bmp24},
    {32, Plain, 74, true, Tex_Pixel::None, 32, Bmp32_To_Bmp24},
}};

std::uint32_t Number_At(std::span<const Byte> From, std::size_t At, std::size_t Size) {
    std::uint32_t Value = 0;
    for (std::size_t I = 0; I < Size; ++I) Value |= std::uint32_t{From[At + I]} << (8 * I);
    return Value;
}

bool Is_Of(const Texture_Layout& L, std::span<const Byte> Head) {
    return Number_At(Head, 28, 2) == static_cast<std::uint32_t>(L.Bits) &&
           Number_At(Head, 30, 4) == L.Compression && Number_At(Head, 10, 4) == L.Off &&
           Head.size() >= L.Off &&
           (!L.Extended || Number_At(Head, L.Off - Block_Size, 4) == Tag("FS70"));
}

bool Side_Can_Be(std::uint32_t Side, const Texture_Layout& L) {
    return Side > 0 && Side <= static_cast<std::uint32_t>(Largest_Texture_Side) &&
           (!L.In_Blocks() || Side % 4 == 0);
}

void Read_Masks(std::span<const Byte> Head, Stored_Pixels& P) {
    P.Masks = {.Red = Number_At(Head, 54, 4),
               .Green = Number_At(Head, 58, 4),
               .Blue = Number_At(Head, 62, 4)};
    if (P.Masks.Blue < 16) P.Pixel = Tex_Pixel::P444;
}

}  // namespace

std::size_t Texture_Layout::Size_Of(Long Width, Long Height) const {
    const std::size_t Row_Bits =
        static_cast<std::size_t>(Width) * static_cast<std::size_t>(Stored_Bits);
    const auto Rows = static_cast<std::size_t>(Height);
    return In_Blocks() ? Row_Bits * Rows / 8 : (Row_Bits + 31) / 32 * 4 * Rows;
}

const Texture_Layout* Texture_Layout_Of(std::span<const Byte> Head, Stored_Pixels& P) {
    if (Head.size() < Bitmap_Headers_Size) return nullptr;
    const auto L = std::find_if(Layouts.begin(), Layouts.end(),
                                [&](const Texture_Layout& Row) { return Is_Of(Row, Head); });
    if (L == Layouts.end()) return nullptr;
    const std::uint32_t Width = Number_At(Head, 18, 4), Height = Number_At(Head, 22, 4);
    if (!Side_Can_Be(Width, *L) || !Side_Can_Be(Height, *L)) return nullptr;
    P.Width = static_cast<Long>(Width);
    P.Height = static_cast<Long>(Height);
    P.Pixel = L->Pixel;
    if (L->Compression == Masked) Read_Masks(Head, P);
    if (L->Bits == 8) P.Palette = Head.subspan(Bitmap_Headers_Size, std::size_t{256} * 4);
    return &*L;
}
