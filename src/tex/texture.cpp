// tex/texture.cpp - which format a file has, and the ways of each to a picture and to a bitmap.
#include "tex/texture.h"

#include <algorithm>
#include <array>
#include <new>
#include <vector>

#include "core/host.h"
#include "platform/file_reader.h"
#include "platform/files.h"
#include "tex/r8.h"
#include "tex/texture_layout.h"

namespace {

constexpr Int Kind_R8 = 1, Kind_Compressed_R8 = 2;  // other kinds are the bits of a pixel
constexpr std::uint32_t Pixels_Per_Metre = 2834;

// What a file turned out to be.
struct Texture {
    Int Kind = 0;
    Tex_Pixel Pixel = Tex_Pixel::None;
    bool Extended = false;
    Picture Pic;
};

bool Is_R8(const Texture& T) {
    return T.Kind == Kind_R8 || T.Kind == Kind_Compressed_R8;
}

std::string Kind_Name(Int Kind) {
    if (Kind == Kind_R8) return "Texture type .R8";
    if (Kind == Kind_Compressed_R8)
        return "Texture type .R8 compress\xE9"
               "e";
    return "Bmp " + std::to_string(Kind) + " Bits";
}

const char* Pixel_Name(Tex_Pixel Pixel) {
    switch (Pixel) {
        case Tex_Pixel::P444:
            return " 4-4-4";
        case Tex_Pixel::P555:
            return " 5-5-5";
        case Tex_Pixel::P565:
            return " 5-6-5";
        case Tex_Pixel::Dxt1:
            return " DXT1";
        case Tex_Pixel::Dxt3:
            return " DXT3";
        case Tex_Pixel::None:
            break;
    }
    return "";
}

// These words are the same in both languages.
std::string Describe(const Texture& T) {
    return Kind_Name(T.Kind) + " " + std::to_string(T.Pic.Width) + "x" +
           std::to_string(T.Pic.Height) + (T.Extended ? " \xE9tendu" : "") + Pixel_Name(T.Pixel);
}

Texture_Fault Read_Bitmap(File_Reader& File, std::span<const Byte> Head, Texture& T) {
    Stored_Pixels From;
    const Texture_Layout* L = Texture_Layout_Of(Head, From);
    if (L == nullptr) return Texture_Fault::Unsupported;
    const std::size_t Size = L->Size_Of(From.Width, From.Height);
    if (Size > File.Size() - L->Off) return Texture_Fault::Unsupported;
    std::vector<Byte> Pixels(Size);
    if (!File.Read(L->Off, Pixels)) return Texture_Fault::Not_There;
    From.Pixels = Pixels;
    T.Kind = L->Bits;
    T.Pixel = From.Pixel;
    T.Extended = L->Extended;
    T.Pic = Picture_Make(From.Width, From.Height, 24);
    L->To_Bmp24(From, T.Pic);
    return Texture_Fault::None;
}

Texture_Fault Read_R8(File_Reader& File, const Palette& Pal, Texture& T) {
    if (File.Size() > R8_Size) return Texture_Fault::Unsupported;
    std::vector<Byte> Bytes(static_cast<std::size_t>(File.Size()));
    if (!File.Read(0, Bytes)) return Texture_Fault::Not_There;
    T.Kind = Bytes.size() == R8_Size ? Kind_R8 : Kind_Compressed_R8;
    std::vector<Byte> Indices;
    if (T.Kind == Kind_R8)
        Indices.swap(Bytes);
    else if (!R8_Expand(Bytes, Indices))
        return Texture_Fault::Damaged;
    Pal_Tell_If_Lacking();
    T.Pic = Picture_Make(R8_Side, R8_Side, 24);
    R8_To_Bmp(Indices, Pal, T.Pic);
    return Texture_Fault::None;
}

Texture_Fault Read(std::string_view Path, const Palette& Pal, Texture& T) {
    File_Reader File(Path);
    if (!File.Is_Open()) return Texture_Fault::Not_There;
    if (File.Size() < Bitmap_Headers_Size) return Texture_Fault::Too_Short;
    std::array<Byte, Largest_Texture_Head> Room{};
    const auto Head = std::span(Room).first(
        static_cast<std::size_t>(std::min<std::uint64_t>(File.Size(), Room.size())));
    if (!File.Read(0, Head)) return Texture_Fault::Not_There;
    try {
        return Head[0] == 'B' && Head[1] == 'M' ? Read_Bitmap(File, Head, T)
                                                : Read_R8(File, Pal, T);
    } catch (const std::bad_alloc&) {
        return Texture_Fault::No_Memory;
    }
}

std::string Bitmap_Headers(const Texture& T) {
    std::string Out = "BM";
    const auto Put = [&](std::size_t Value, int Size) {
        for (int I = 0; I < Size; ++I) Out += static_cast<char>(Value >> (8 * I) & 255);
    };
    const std::uint32_t Per_Metre = Is_R8(T) ? 0 : Pixels_Per_Metre;
    for (const std::size_t Value :
         {T.Pic.Bytes.size() + Bitmap_Headers_Size, std::size_t{0}, Bitmap_Headers_Size,
          std::size_t{40}, static_cast<std::size_t>(T.Pic.Width),
          static_cast<std::size_t>(T.Pic.Height)})
        Put(Value, 4);
    Put(1, 2);
    Put(24, 2);
    for (const std::size_t Value : {std::size_t{0}, T.Pic.Bytes.size(), std::size_t{Per_Metre},
                                    std::size_t{Per_Metre}, std::size_t{0}, std::size_t{0}})
        Put(Value, 4);
    return Out;
}

bool Write_Bitmap(const Texture& T, std::string_view Path) {
    File_Writer Out(Path, File_Writer::Mode::Safe);
    if (!Out.Is_Open()) return false;
    Out.Put(Bitmap_Headers(T));
    for (Long Y = T.Pic.Height - 1; Y >= 0; --Y)
        Out.Put({reinterpret_cast<const char*>(T.Pic.Line(Y)), T.Pic.Stride});
    return Out.Commit();
}

Texture_Fault Convert(std::string_view Source, const Palette& Pal, std::string_view Output,
                      Texture& T) {
    if (File_Same(Source, Output)) return Texture_Fault::Same_File;
    const Texture_Fault Fault = Read(Source, Pal, T);
    if (Fault != Texture_Fault::None) return Fault;
    const bool Written = T.Kind == 24 ? File_Copy(Source, Output) : Write_Bitmap(T, Output);
    return Written ? Texture_Fault::None : Texture_Fault::Not_Written;
}

}  // namespace

Int Texture_Error(Texture_Fault Fault) {
    if (Fault == Texture_Fault::None) return 0;
    return Fault == Texture_Fault::Too_Short || Fault == Texture_Fault::Not_There ? 2 : 1;
}

Texture_Fault Texture_Read(std::string_view Path, const Palette& Pal, Picture& P,
                           std::string& Description) {
    const Hourglass Waits;
    Texture T;
    const Texture_Fault Fault = Read(Path, Pal, T);
    const bool Is_Good = Fault == Texture_Fault::None;
    Description = Is_Good ? Describe(T) : std::string();
    P = Is_Good ? std::move(T.Pic) : Picture();
    return Fault;
}

Texture_Fault Texture_To_Bmp(std::string_view Source, const Palette& Pal, std::string_view Output,
                             std::string& Description, Int& Error) {
    const Hourglass Waits;
    Texture T;
    const Texture_Fault Fault = Convert(Source, Pal, Output, T);
    if (Is_R8(T)) File_Delete(Tex_Temp.empty() ? App_Path + "\\Temp\\$Tex$.bmp" : Tex_Temp);
    Description = Fault == Texture_Fault::None ? Describe(T) : std::string();
    Error = Texture_Error(Fault);
    return Fault;
}
