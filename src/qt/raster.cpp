// qt/raster.cpp - lines and stretched pictures painted into an image of 32 bits a pixel.
//
// Qt's own painter strokes each line of width 2 as a polygon, which is far too slow for the
// objects of a large project.
#include "qt/raster.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cmath>
#include <cstring>
#include <span>
#include <utility>
#include <vector>

#include "core/grid_colours.h"

namespace {

constexpr std::uint32_t Opaque = 0xFF000000U;

// How much of a line is painted, in canvas pixels: On of each Period.
struct Rhythm {
    std::int64_t On, Period;
};

constexpr Rhythm Rhythm_Of(Line_Style Style) {
    switch (Style) {
        case Line_Style::Dotted:
            return {1, 3};
        case Line_Style::Dashed:
            return {6, 9};
        case Line_Style::Solid:
            break;
    }
    return {1, 1};
}

// The image pixels along one side of a copy, and the source pixel of each.
struct Side {
    std::int64_t First = 0;          // image pixel
    std::vector<std::size_t> Taken;  // source pixel of First and those that follow
};

struct Stretch {
    double Dest, Dest_End;  // image pixels
    std::int64_t Source, Source_Size;
    std::int64_t Image_Size, Picture_Size;
};

// The first pixel of the image whose middle lies at Edge or behind it.
std::int64_t Pixel_From(double Edge, std::int64_t Image_Size) {
    return static_cast<std::int64_t>(
        std::clamp(std::ceil(Edge - 0.5), 0.0, static_cast<double>(Image_Size)));
}

Side Nearest(const Stretch& S) {
    Side Made;
    if (!(S.Dest < S.Dest_End) || S.Source_Size <= 0) return Made;
    const auto Size = static_cast<double>(S.Source_Size);
    const double Length = S.Dest_End - S.Dest;
    const std::int64_t End = Pixel_From(S.Dest_End, S.Image_Size);
    for (std::int64_t I = Pixel_From(S.Dest, S.Image_Size); I < End; ++I) {
        const auto Of_Source =
            static_cast<std::int64_t>((static_cast<double>(I) + 0.5 - S.Dest) * Size / Length);
        const std::int64_t At = S.Source + std::min(Of_Source, S.Source_Size - 1);
        if (At < 0) continue;
        if (At >= S.Picture_Size) break;
        if (Made.Taken.empty()) Made.First = I;
        Made.Taken.push_back(static_cast<std::size_t>(At));
    }
    return Made;
}

using Colours = std::array<std::uint32_t, 256>;

Colours Palette_Of(const Picture& P) {
    Colours Made{};
    for (std::size_t I = 0; I < std::min(P.Palette.size(), Made.size()); ++I)
        Made[I] = Opaque | static_cast<std::uint32_t>(P.Palette[I].Red) << 16 |
                  static_cast<std::uint32_t>(P.Palette[I].Green) << 8 | P.Palette[I].Blue;
    return Made;
}

void Copy_Line_8(const std::uint8_t* From, const Side& Columns, const Colours& Of,
                 std::uint32_t* To) {
    for (const std::size_t X : Columns.Taken) *To++ = Of[From[X]];
}

// Where a word's lowest byte comes first, a pixel and the byte behind it are read as one, as far as
// the line goes.
std::size_t Copy_Words(const std::uint8_t* From, std::size_t Size, const Side& Columns,
                       std::uint32_t* To) {
    if constexpr (std::endian::native != std::endian::little) return 0;
    std::size_t I = 0;
    for (; I < Columns.Taken.size() && 3 * Columns.Taken[I] + sizeof(std::uint32_t) <= Size; ++I) {
        std::uint32_t Word;
        std::memcpy(&Word, From + 3 * Columns.Taken[I], sizeof Word);
        To[I] = Opaque | Word;
    }
    return I;
}

void Copy_Line_24(const std::uint8_t* From, std::size_t Size, const Side& Columns,
                  std::uint32_t* To) {
    const std::size_t Done = Copy_Words(From, Size, Columns, To);
    To += Done;
    for (const std::size_t X : std::span(Columns.Taken).subspan(Done)) {
        const std::uint8_t* Bgr = From + 3 * X;
        *To++ = Opaque | static_cast<std::uint32_t>(Bgr[2]) << 16 |
                static_cast<std::uint32_t>(Bgr[1]) << 8 | Bgr[0];
    }
}

// A line in image pixels, turned so that A is the axis it goes further along and B the other.
// Both are positions of pixels' middles.
struct Run {
    double A1, B1, A2, B2;
    std::int64_t Size_A, Size_B;    // of the image
    std::ptrdiff_t Step_A, Step_B;  // from a pixel to its neighbour
    double Dots_From = 0.0;         // where the dots begin along A
};

Run Make_Run(const Raster& R, const Line_Px& L) {
    const auto Middle = [&R](Long At) { return (static_cast<double>(At) + 0.5) * R.Scale; };
    const double X1 = Middle(L.X1), Y1 = Middle(L.Y1), X2 = Middle(L.X2), Y2 = Middle(L.Y2);
    Run M = std::abs(X2 - X1) >= std::abs(Y2 - Y1)
                ? Run{X1, Y1, X2, Y2, R.Width, R.Height, 1, R.Stride}
                : Run{Y1, X1, Y2, X2, R.Height, R.Width, R.Stride, 1};
    M.Dots_From = M.A1;
    if (M.A1 > M.A2) {
        std::swap(M.A1, M.A2);
        std::swap(M.B1, M.B2);
    }
    return M;
}

struct Brush {
    std::uint32_t Colour;
    std::int64_t Thick;  // image pixels across
    std::int64_t Unit;   // of the rhythm
    Rhythm Beat;
    double Scale;
};

// The pixels along A between which the line can be seen: First above Last for none.
struct Range {
    std::int64_t First, Last;
};

Range Seen(const Run& M, double Slope, const Brush& With) {
    double From = std::max(M.A1 - With.Scale / 2.0, 0.0);
    double To = std::min(M.A2 + With.Scale / 2.0, static_cast<double>(M.Size_A));
    const auto Beyond = static_cast<double>(With.Thick + 1);
    const double Low = -Beyond, High = static_cast<double>(M.Size_B) + Beyond;
    if (Slope != 0.0) {
        const double At_Low = M.A1 + (Low - M.B1) / Slope, At_High = M.A1 + (High - M.B1) / Slope;
        From = std::max(From, std::min(At_Low, At_High));
        To = std::min(To, std::max(At_Low, At_High));
    } else if (M.B1 < Low || M.B1 > High) {
        return {1, 0};
    }
    if (To <= From) return {1, 0};
    return {static_cast<std::int64_t>(std::floor(From + 0.5)),
            static_cast<std::int64_t>(std::floor(To + 0.5)) - 1};
}

// Black or white, whichever is further from a colour's brightness.
std::uint32_t Against(std::uint32_t Found) {
    const std::uint32_t Red = Found >> 16 & 0xFF, Green = Found >> 8 & 0xFF, Blue = Found & 0xFF;
    return Red * 299 + Green * 587 + Blue * 114 < 127500 ? 0xFFFFFFFFU : Opaque;
}

template <bool By_Contrast>
void Paint_Run(std::uint32_t* Pixels, const Run& M, const Brush& With) {
    constexpr double One = 4294967296.0;  // B is counted in 32 places behind the point
    const double Slope = M.A2 == M.A1 ? 0.0 : (M.B2 - M.B1) / (M.A2 - M.A1);
    const Range R = Seen(M, Slope, With);
    if (R.First > R.Last) return;
    const double Start = M.B1 + Slope * (static_cast<double>(R.First) + 0.5 - M.A1);
    auto B = static_cast<std::int64_t>((Start - static_cast<double>(With.Thick) / 2.0 + 0.5) * One);
    const auto Step = static_cast<std::int64_t>(Slope * One);
    const auto Dots_From =
        static_cast<std::int64_t>(std::floor(M.Dots_From - With.Scale / 2 + 0.5));
    const bool Is_Broken = With.Beat.On < With.Beat.Period;
    for (std::int64_t A = R.First; A <= R.Last; ++A, B += Step) {
        if (Is_Broken && std::abs(A - Dots_From) / With.Unit % With.Beat.Period >= With.Beat.On)
            continue;
        const std::int64_t First = B >> 32;
        std::uint32_t* Across = Pixels + A * M.Step_A;
        const std::int64_t End = std::min(First + With.Thick, M.Size_B);
        for (std::int64_t I = std::max<std::int64_t>(First, 0); I < End; ++I)
            Across[I * M.Step_B] = By_Contrast ? Against(Across[I * M.Step_B]) : With.Colour;
    }
}

// A line to the same pixel or a neighbour of it, as most of a drawing seen from afar are: what
// Paint_Run would make of it, where an image pixel is a canvas pixel.
void Paint_Step(const Raster& R, const Line_Px& L, std::int64_t Thick, std::uint32_t Colour) {
    const bool Along_X = L.Y1 == L.Y2 || L.X1 != L.X2;
    const std::int64_t Size_A = Along_X ? R.Width : R.Height, Size_B = Along_X ? R.Height : R.Width;
    const std::ptrdiff_t Step_A = Along_X ? 1 : R.Stride, Step_B = Along_X ? R.Stride : 1;
    const auto Across = [&](std::int64_t A, std::int64_t B) {
        if (A < 0 || A >= Size_A) return;
        const std::int64_t First = B + 1 - (Thick + 1) / 2;
        const std::int64_t End = std::min(First + Thick, Size_B);
        std::uint32_t* Column = R.Pixels + A * Step_A;
        for (std::int64_t I = std::max<std::int64_t>(First, 0); I < End; ++I)
            Column[I * Step_B] = Colour;
    };
    const bool Has_Two = L.X1 != L.X2 || L.Y1 != L.Y2;
    Across(Along_X ? L.X1 : L.Y1, Along_X ? L.Y1 : L.X1);
    if (Has_Two) Across(Along_X ? L.X2 : L.Y2, Along_X ? L.Y2 : L.X2);
}

bool Is_Step(const Line_Px& L) {
    const auto Is_One = [](Long From, Long To) { return std::abs(std::int64_t{To} - From) <= 1; };
    return Is_One(L.X1, L.X2) && Is_One(L.Y1, L.Y2);
}

// Most segments of a drawing seen from afar: they end where they begin, at the last one's end.
bool Is_Painted(const Line_Px& L, const Line_Px& Before) {
    return L.X1 == L.X2 && L.Y1 == L.Y2 && L.X1 == Before.X2 && L.Y1 == Before.Y2;
}

}  // namespace

void Raster_Copy(const Raster& R, const Picture& P, Box_Px Source, const Edges_Px& Dest) {
    if (P.Is_Empty()) return;
    const double F = R.Scale;
    const Side Columns =
        Nearest({Dest.Left * F, Dest.Right * F, Source.X, Source.W, R.Width, P.Width});
    const Side Rows =
        Nearest({Dest.Top * F, Dest.Bottom * F, Source.Y, Source.H, R.Height, P.Height});
    if (Columns.Taken.empty()) return;
    const Colours Of = Palette_Of(P);
    const std::size_t Bytes = Columns.Taken.size() * sizeof(std::uint32_t);
    std::uint32_t* To = R.Pixels + Rows.First * R.Stride + Columns.First;
    for (std::size_t I = 0; I < Rows.Taken.size(); ++I, To += R.Stride) {
        const std::uint8_t* From = P.Line(static_cast<Long>(Rows.Taken[I]));
        if (I > 0 && Rows.Taken[I] == Rows.Taken[I - 1])
            std::memcpy(To, To - R.Stride, Bytes);
        else if (P.Bits == 8)
            Copy_Line_8(From, Columns, Of, To);
        else
            Copy_Line_24(From, P.Stride, Columns, To);
    }
}

// Red and blue are mixed in one number, green in another; 256 parts are the whole.
void Raster_Mix(const Raster& R, std::uint32_t Colour, Int Percent) {
    constexpr std::uint32_t Outer = 0xFF00FF, Middle = 0x00FF00;
    const auto Stays = static_cast<std::uint32_t>(Percent * 256 / 100);
    const std::uint32_t Outer_Of_Other = (Colour & Outer) * (256 - Stays);
    const std::uint32_t Middle_Of_Other = (Colour & Middle) * (256 - Stays);
    for (Long Y = 0; Y < R.Height; ++Y) {
        std::uint32_t* Line = R.Pixels + Y * R.Stride;
        for (Long X = 0; X < R.Width; ++X)
            Line[X] = Opaque | (((Line[X] & Outer) * Stays + Outer_Of_Other) >> 8 & Outer) |
                      (((Line[X] & Middle) * Stays + Middle_Of_Other) >> 8 & Middle);
    }
}

void Raster_Lines(const Raster& R, std::span<const Line_Px> Segments, const Pen& With) {
    const auto Pixels = [&R](Int Wide) {
        return std::max<std::int64_t>(1, std::lround(static_cast<double>(Wide) * R.Scale));
    };
    const Brush B{.Colour = Opaque | static_cast<std::uint32_t>(With.Colour),
                  .Thick = Pixels(With.Width),
                  .Unit = Pixels(1),
                  .Beat = Rhythm_Of(With.Style),
                  .Scale = R.Scale};
    const auto Paint = With.Colour == Contrast_Colour ? Paint_Run<true> : Paint_Run<false>;
    const bool Has_Steps =
        R.Scale == 1.0 && With.Style == Line_Style::Solid && With.Colour != Contrast_Colour;
    const Line_Px* Before = nullptr;
    for (const Line_Px& L : Segments) {
        const bool Is_New = Before == nullptr || !Is_Painted(L, *Before);
        if (Is_New && Has_Steps && Is_Step(L))
            Paint_Step(R, L, B.Thick, B.Colour);
        else if (Is_New)
            Paint(R.Pixels, Make_Run(R, L), B);
        Before = &L;
    }
}
