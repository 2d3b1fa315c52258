// tex/bitmap.h - reading bitmap files (BMP).
//
// 8 bits a pixel with a palette, or 24 bits, not compressed, lines from the bottom or from the
// top. Nothing a file says of itself is believed before its length bears it out.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

#include "core/program.h"
#include "platform/file_reader.h"
#include "tex/picture.h"

enum class Bitmap_Fault {
    None,
    Not_There,     // or not readable
    Not_A_Bitmap,  // does not begin with "BM" and a header of a known size
    Depth,         // neither 8 nor 24 bits a pixel
    Compressed,
    Size,       // no pixels, or more than can be counted
    Cut_Short,  // the file ends before its pixels do
    No_Memory   // no room for its pixels
};

/// What the headers of a bitmap file say.
struct Bitmap_Header {
    Long Width = 0, Height = 0;                // pixels
    Int Bits = 0;                              // 8 or 24 a pixel
    bool Top_Down = false;                     // the first line of the file is the top one
    std::uint64_t Pixels_At = 0;               // position of the first line
    std::uint64_t Stride = 0;                  // bytes from a line to the next
    std::array<Palette_Entry, 256> Palette{};  // in 8 bits

    /// Position of the line that is Y from the top.
    std::uint64_t Line_At(Long Y) const {
        return Pixels_At + static_cast<std::uint64_t>(Top_Down ? Y : Height - 1 - Y) * Stride;
    }
};

/// Reads the headers and, in 8 bits, the palette; colours that the file lacks are black.
Bitmap_Fault Bitmap_Header_Read(File_Reader& File, Bitmap_Header& Header);

/// The whole of a bitmap file; P is empty after a fault.
Bitmap_Fault Picture_Read(std::string_view Path, Picture& P);

/// What is wrong with the file Path, in the program's language.
std::string Bitmap_Fault_Text(Bitmap_Fault Fault, std::string_view Path);
