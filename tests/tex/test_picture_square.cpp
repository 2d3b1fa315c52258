// tests/tex/test_picture_square.cpp - where pictures stand in a square of 256.
#include "tex/picture_square.h"

#include <gtest/gtest.h>

TEST(Picture_Square, PlacesAndPixels) {
    const struct {
        Long Width, Height;
        Square_Place At;
    } Rows[] = {{300, 100, {0, 86, 256, 85}},  {100, 100, {78, 78, 100, 100}},
                {256, 100, {0, 78, 256, 100}}, {100, 300, {86, 0, 85, 256}},
                {512, 512, {0, 0, 256, 256}},  {8192, 1, {0, 128, 256, 0}},
                {257, 256, {0, 0, 256, 255}},  {1, 3, {128, 126, 1, 3}}};
    for (const auto& [Width, Height, At] : Rows) {
        const Square_Place P = Place_In_Square(Width, Height, 256);
        EXPECT_TRUE(P.X == At.X && P.Y == At.Y && P.Width == At.Width && P.Height == At.Height)
            << Width << "x" << Height << ": " << P.X << " " << P.Y << " " << P.Width << " "
            << P.Height;
        Picture Whole = Picture_Make(Width, Height, 24);
        for (auto& B : Whole.Bytes) B = 9;
        const Picture Shown = Picture_In_Square(Whole, 256);
        Long Nb = 0;
        for (Long Y = 0; Y < 256; ++Y)
            for (Long X = 0; X < 256; ++X) Nb += Shown.Line(Y)[3 * X] == 9;
        EXPECT_EQ(Nb, At.Width * At.Height) << Width << "x" << Height;
    }
}
