// tests/qt/test_raster.cpp - lines and stretched pictures, pixel by pixel.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "core/grid_colours.h"
#include "qt/raster.h"

namespace {

constexpr std::uint32_t Blank = 0xFF000000U, Red = 0xFFFF0000U;

struct Painted {
    explicit Painted(Long W, Long H, double Scale = 1.0)
        : Pixels(static_cast<std::size_t>(W) * static_cast<std::size_t>(H), Blank),
          R{.Pixels = Pixels.data(), .Stride = W, .Width = W, .Height = H, .Scale = Scale} {}

    std::uint32_t At(Long X, Long Y) const {
        return Pixels[static_cast<std::size_t>(Y * R.Width + X)];
    }
    void Lines(std::vector<Line_Px> Drawn, Int Width = 1, Line_Style Style = Line_Style::Solid) {
        Raster_Lines(R, Drawn, {.Colour = 0xFF0000, .Width = Width, .Style = Style});
    }
    // "#" for a painted pixel, "." for another, a row of the image.
    std::string Row(Long Y) const {
        std::string Made;
        for (Long X = 0; X < R.Width; ++X) Made += At(X, Y) == Blank ? '.' : '#';
        return Made;
    }

    std::vector<std::uint32_t> Pixels;
    Raster R;
};

// Each pixel differs from all others.
Picture Numbered(Long W, Long H, Int Bits) {
    Picture P = Picture_Make(W, H, Bits);
    for (Long Y = 0; Y < H; ++Y)
        for (Long X = 0; X < W; ++X) {
            std::uint8_t* To = P.Bytes.data() + static_cast<std::size_t>(Y) * P.Stride;
            if (Bits == 8) {
                To[X] = static_cast<std::uint8_t>(Y * W + X);
            } else {
                To[3 * X] = static_cast<std::uint8_t>(X);
                To[3 * X + 1] = static_cast<std::uint8_t>(Y);
                To[3 * X + 2] = 7;
            }
        }
    for (std::size_t I = 0; I < P.Palette.size(); ++I)
        P.Palette[I] = {
            .Blue = static_cast<Byte>(I), .Green = static_cast<Byte>(255 - I), .Red = 9};
    return P;
}

std::uint32_t Colour_24(Long X, Long Y) {
    return 0xFF070000U | static_cast<std::uint32_t>(Y) << 8 | static_cast<std::uint32_t>(X);
}

// Of the pixel that comes after I others, whose palette begins again every 256.
std::uint32_t Colour_8(Long I) {
    const auto Index = static_cast<std::uint32_t>(I) % 256;
    return 0xFF090000U | (255 - Index) << 8 | Index;
}

}  // namespace

// The plain rule: the source pixel under the middle of each pixel.
TEST(Raster_Test, ACopyOfAnySizeTakesTheNearestPixel) {
    for (const Int Bits : {24, 8})
        for (const auto& [W, Scale] :
             {std::pair{1.0, 1.0}, {7.3, 2.0}, {40.0, 1.0}, {53.0, 1.5}, {480.25, 1.0}}) {
            const Picture P = Numbered(40, 30, Bits);
            const Edges_Px Dest{-5.4, 4.0, W - 5.4, W + 4.0};
            Painted Shown(97, 61, Scale);
            Raster_Copy(Shown.R, P, {3, 2, 30, 20}, Dest);
            for (Long Y = 0; Y < 61; ++Y)
                for (Long X = 0; X < 97; ++X) {
                    const double A = (X + 0.5) / Scale + 5.4, B = (Y + 0.5) / Scale - 4.0;
                    const bool In = A >= 0.0 && A < W && B >= 0.0 && B < W;
                    const auto SX = static_cast<Long>(3 + A * 30 / W);
                    const auto SY = static_cast<Long>(2 + B * 20 / W);
                    const std::uint32_t Wanted =
                        Bits == 8 ? Colour_8(SY * 40 + SX) : Colour_24(SX, SY);
                    ASSERT_EQ(Shown.At(X, Y), In ? Wanted : Blank)
                        << W << " " << Scale << " " << X << " " << Y;
                }
        }
}

TEST(Raster_Test, BothEndsOfALineArePainted) {
    for (const Line_Px L : {Line_Px{1, 1, 8, 1}, Line_Px{8, 6, 1, 2}, Line_Px{3, 8, 5, 1},
                            Line_Px{4, 4, 4, 4}, Line_Px{2, 2, 7, 7}}) {
        Painted Shown(10, 10);
        Shown.Lines({L});
        EXPECT_EQ(Shown.At(L.X1, L.Y1), Red);
        EXPECT_EQ(Shown.At(L.X2, L.Y2), Red);
        const auto Count = std::count(Shown.Pixels.begin(), Shown.Pixels.end(), Red);
        EXPECT_EQ(Count, std::max(std::abs(L.X2 - L.X1), std::abs(L.Y2 - L.Y1)) + 1);
    }
}

TEST(Raster_Test, ALineKeepsItsPixelsWhereverTheCanvasEnds) {
    const Line_Px L{-70, 61, 95, -20};
    Painted Small(40, 30), Large(140, 30);
    Small.Lines({L});
    Large.Lines({{L.X1 + 100, L.Y1, L.X2 + 100, L.Y2}});
    EXPECT_NE(std::count(Large.Pixels.begin(), Large.Pixels.end(), Red), 0);
    for (Long Y = 0; Y < 30; ++Y) EXPECT_EQ(Small.Row(Y), Large.Row(Y).substr(100)) << "row " << Y;
    Painted Far(40, 30);
    Far.Lines(
        {{-2000000000, -2000000000, 2000000000, 2000000000}, {50, 0, 60, 29}, {0, -9, 39, -2}});
    EXPECT_EQ(std::count(Far.Pixels.begin(), Far.Pixels.end(), Red), 30) << "the diagonal alone";
}

// Contrast goes the long way, and paints white on black: the same pixels.
TEST(Raster_Test, AStepToANeighbourIsALineLikeAnyOther) {
    for (const Int Width : {1, 2, 3, 4})
        for (Long At = 0; At < 9 * 81; ++At) {
            const Line_Px L{At % 9 - 2, At / 9 % 9 - 2, At % 9 - 3 + At / 81 % 3,
                            At / 9 % 9 - 3 + At / 243};
            Painted Shown(6, 5), Against(6, 5);
            Shown.Lines({L}, Width);
            Raster_Lines(Against.R, {&L, 1}, {.Colour = Contrast_Colour, .Width = Width});
            for (Long Y = 0; Y < 5; ++Y)
                ASSERT_EQ(Shown.Row(Y), Against.Row(Y)) << L.X1 << " " << L.Y1 << " " << Width;
            EXPECT_EQ(std::count(Against.Pixels.begin(), Against.Pixels.end(), 0xFFFFFFFFU),
                      std::count(Shown.Pixels.begin(), Shown.Pixels.end(), Red));
        }
}

TEST(Raster_Test, WidthAndDotsGrowWithThePixelsOfTheScreen) {
    Painted Plain(12, 6), Fine(24, 12, 2.0);
    for (Painted* P : {&Plain, &Fine}) {
        P->Lines({{0, 1, 11, 1}}, 1, Line_Style::Dotted);
        P->Lines({{0, 3, 11, 3}}, 2);
        P->Lines({{0, 0, 11, 0}}, 1, Line_Style::Dashed);
    }
    EXPECT_EQ(Plain.Row(0), "######...###");
    EXPECT_EQ(Plain.Row(1), "#..#..#..#..");
    EXPECT_EQ(Fine.Row(2), "##....##....##....##....") << "rows 2 and 3 are canvas row 1";
    EXPECT_EQ(Plain.Row(3), std::string(12, '#'));
    EXPECT_EQ(Plain.Row(4), std::string(12, '#'));
    EXPECT_EQ(Plain.Row(5), std::string(12, '.'));
    int Painted_Rows = 0;
    for (Long Y = 4; Y < 12; ++Y) Painted_Rows += Fine.Row(Y).substr(1, 22) == std::string(22, '#');
    EXPECT_EQ(Painted_Rows, 4);
}
