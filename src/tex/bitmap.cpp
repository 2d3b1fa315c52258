// tex/bitmap.cpp - the headers of a bitmap file, and its pixels line by line.
#include "tex/bitmap.h"
#include "platform/paths.h"

#include <algorithm>
#include <limits>
#include <new>
#include <vector>

namespace {

constexpr std::size_t File_Header_Size = 14;
constexpr std::size_t Info_Header_Size = 40;  // longer ones begin with the same fields
constexpr std::uint32_t Largest_Info_Header = 1024;
constexpr std::size_t Piece_Size = std::size_t{1} << 20;

using Bytes = std::span<const std::uint8_t>;

std::uint32_t Number_At(Bytes From, std::size_t At, std::size_t Size) {
    std::uint32_t Value = 0;
    for (std::size_t I = 0; I < Size; ++I) Value |= std::uint32_t{From[At + I]} << (8 * I);
    return Value;
}

// A palette may be shorter than the depth allows, and may run into the pixels; what it lacks
// stays black.
void Read_Palette(File_Reader& File, std::uint64_t At, std::uint32_t Colours, Bitmap_Header& H) {
    if (Colours == 0 || Colours > H.Palette.size()) Colours = 256;
    const std::uint64_t Room = H.Pixels_At > At ? (H.Pixels_At - At) / 4 : 0;
    std::array<std::uint8_t, 256 * 4> Raw{};
    const auto Nb = static_cast<std::size_t>(std::min<std::uint64_t>(Colours, Room));
    if (!File.Read(At, std::span(Raw).first(Nb * 4))) return;
    for (std::size_t I = 0; I < Nb; ++I)
        H.Palette[I] = {.Blue = Raw[4 * I],
                        .Green = Raw[4 * I + 1],
                        .Red = Raw[4 * I + 2],
                        .Zero = Raw[4 * I + 3]};
}

// Height is stored negative where the top line comes first.
bool Read_Size(Bytes Info, Bitmap_Header& H) {
    const std::int64_t Width = static_cast<std::int32_t>(Number_At(Info, 4, 4));
    const std::int64_t Height = static_cast<std::int32_t>(Number_At(Info, 8, 4));
    const std::int64_t Lines = Height < 0 ? -Height : Height;
    if (Width <= 0 || Lines == 0 || Lines > std::numeric_limits<Long>::max()) return false;
    H.Width = static_cast<Long>(Width);
    H.Height = static_cast<Long>(Lines);
    H.Top_Down = Height < 0;
    H.Stride =
        (static_cast<std::uint64_t>(Width) * static_cast<std::uint64_t>(H.Bits / 8) + 3) / 4 * 4;
    return true;
}

bool Read_Lines(File_Reader& File, const Bitmap_Header& H, Picture& P) {
    if (H.Bits == 8) P.Palette.assign(H.Palette.begin(), H.Palette.end());
    if (H.Top_Down) return File.Read(H.Pixels_At, P.Bytes);
    const std::size_t Stride = P.Stride, Nb_Lines = static_cast<std::size_t>(H.Height);
    const std::size_t Lines = std::clamp<std::size_t>(Piece_Size / Stride, 1, Nb_Lines);
    std::vector<std::uint8_t> Piece(Lines * Stride);
    for (std::size_t Done = 0; Done < Nb_Lines;) {
        const std::size_t Nb = std::min(Lines, Nb_Lines - Done);
        if (!File.Read(H.Pixels_At + Done * Stride, std::span(Piece).first(Nb * Stride)))
            return false;
        for (std::size_t I = 0; I < Nb; ++I, ++Done)
            std::copy_n(Piece.data() + I * Stride, Stride,
                        P.Bytes.data() + (Nb_Lines - 1 - Done) * Stride);
    }
    return true;
}

}  // namespace

Bitmap_Fault Bitmap_Header_Read(File_Reader& File, Bitmap_Header& Header) {
    Header = {};
    if (!File.Is_Open()) return Bitmap_Fault::Not_There;
    std::array<std::uint8_t, File_Header_Size + Info_Header_Size> Raw{};
    if (!File.Read(0, Raw)) return Bitmap_Fault::Not_A_Bitmap;
    const Bytes Info = Bytes(Raw).subspan(File_Header_Size);
    const std::uint32_t Info_Size = Number_At(Info, 0, 4);
    if (Raw[0] != 'B' || Raw[1] != 'M' || Info_Size < Info_Header_Size ||
        Info_Size > Largest_Info_Header || Number_At(Info, 12, 2) != 1)
        return Bitmap_Fault::Not_A_Bitmap;
    const std::uint32_t Bits = Number_At(Info, 14, 2);
    if (Bits != 8 && Bits != 24) return Bitmap_Fault::Depth;
    Header.Bits = static_cast<Int>(Bits);
    if (Number_At(Info, 16, 4) != 0) return Bitmap_Fault::Compressed;
    if (!Read_Size(Info, Header)) return Bitmap_Fault::Size;
    Header.Pixels_At = Number_At(Raw, 10, 4);
    const std::uint64_t Most = File.Size() - std::min<std::uint64_t>(Header.Pixels_At, File.Size());
    if (Header.Pixels_At < File_Header_Size + Info_Size ||
        static_cast<std::uint64_t>(Header.Height) > Most / Header.Stride)
        return Bitmap_Fault::Cut_Short;
    if (Bits == 8) Read_Palette(File, File_Header_Size + Info_Size, Number_At(Info, 32, 4), Header);
    return Bitmap_Fault::None;
}

Bitmap_Fault Picture_Read(std::string_view Path, Picture& P) {
    P = {};
    File_Reader File(Path);
    Bitmap_Header H;
    Bitmap_Fault Fault = Bitmap_Header_Read(File, H);
    if (Fault != Bitmap_Fault::None) return Fault;
    try {
        P = Picture_Make(H.Width, H.Height, H.Bits);
        if (!Read_Lines(File, H, P)) Fault = Bitmap_Fault::Cut_Short;
    } catch (const std::bad_alloc&) {
        Fault = Bitmap_Fault::No_Memory;
    }
    if (Fault != Bitmap_Fault::None) P = {};
    return Fault;
}

std::string Bitmap_Fault_Text(Bitmap_Fault Fault, std::string_view Path) {
    const auto Text = [&]() -> const char* {
        switch (Fault) {
            case Bitmap_Fault::None:
                return "";
            case Bitmap_Fault::Not_There:
                return In_Language("The file cannot be read:",
                                   "Le fichier ne peut pas \xEAtre lu :");
            case Bitmap_Fault::Not_A_Bitmap:
                return In_Language("This is not a bitmap:", "Ce n'est pas un bitmap :");
            case Bitmap_Fault::Depth:
                return In_Language("The bitmap must have 8 or 24 bits a pixel:",
                                   "Le bitmap doit avoir 8 ou 24 bits par pixel :");
            case Bitmap_Fault::Compressed:
                return In_Language("The bitmap must not be compressed:",
                                   "Le bitmap ne doit pas \xEAtre compress\xE9 :");
            case Bitmap_Fault::Size:
                return In_Language("The size of the bitmap is not valid:",
                                   "La taille du bitmap n'est pas valide :");
            case Bitmap_Fault::Cut_Short:
                return In_Language("The bitmap is not complete:", "Le bitmap est incomplet :");
            case Bitmap_Fault::No_Memory:
                return In_Language("The bitmap needs more memory than there is:",
                                   "Le bitmap demande plus de m\xE9moire qu'il n'y en a :");
        }
        return "";
    };
    return std::string(Text()) + "\r\n" + Shown_Path(Path);
}
