// qt/raster.h - lines and stretched pictures painted into an image of 32 bits a pixel.
//
// Positions are canvas pixels; Scale turns them into pixels of the image, so that a canvas on a
// screen of fine pixels stays sharp. What lies outside the image is left out.
#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "tex/picture.h"
#include "ui/canvas/surface.h"

struct Raster {
    std::uint32_t* Pixels = nullptr;  // 0xffRRGGBB
    std::ptrdiff_t Stride = 0;        // pixels from a line to the next
    Long Width = 0, Height = 0;       // image pixels
    double Scale = 1.0;               // image pixels for a canvas pixel
};

/// Copies Source of P onto Dest by nearest pixels: those of the image whose centre lies in a
/// source pixel take its colour. What Source has outside P is left out.
void Raster_Copy(const Raster& R, const Picture& P, Box_Px Source, const Edges_Px& Dest);

/// Mixes every pixel with Colour: Percent of the pixel stays.
void Raster_Mix(const Raster& R, std::uint32_t Colour, Int Percent);

/// Both ends are painted. A pen of Contrast_Colour paints each pixel against what it finds there. A
/// dotted line has one pixel in three, a dashed one six in nine.
void Raster_Lines(const Raster& R, std::span<const Line_Px> Segments, const Pen& With);
