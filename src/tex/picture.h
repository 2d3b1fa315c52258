// tex/picture.h - a bitmap in memory, in the depth of the file it came from.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "core/numbers.h"
#include "core/program.h"

struct Picture {
    Long Width = 0, Height = 0;               // pixels
    Int Bits = 24;                            // 8 or 24 a pixel
    std::size_t Stride = 0;                   // bytes from a line to the next, a multiple of 4
    std::vector<std::uint8_t> Bytes = {};     // lines from the top; blue, green, red in 24 bits
    std::vector<Palette_Entry> Palette = {};  // 256 entries in 8 bits
    std::uint64_t Id = 0;  // differs for every picture loaded, so that a window can keep its copy

    bool Is_Empty() const { return Bytes.empty(); }
    const std::uint8_t* Line(Long Y) const {
        return Bytes.data() + static_cast<std::size_t>(Y) * Stride;
    }
};

/// A picture of that size, all bytes 0, with a new Id.
Picture Picture_Make(Long Width, Long Height, Int Bits);
