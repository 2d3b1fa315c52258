// tests/tex/test_bitmap.cpp - bitmap files of all accepted forms, and all that is refused.
#include "tex/bitmap.h"

#include "support/bitmap_file.h"
#include "support/program_test.h"

namespace {

class Bitmap : public Program_Test {
protected:
    Bitmap_Fault Read(const std::string& Bytes) {
        Dir.Write("Map.bmp", Bytes);
        return Picture_Read(Dir.Path("Map.bmp"), P);
    }
    Bitmap_Fault Read(const Bitmap_Spec& B) { return Read(Bitmap_Bytes(B)); }

    // Number of pixels of P that are not those of a made bitmap.
    int Wrong_Pixels() const {
        int Wrong = 0;
        const int Channels = P.Bits / 8;
        for (Long Y = 0; Y < P.Height; ++Y)
            for (Long X = 0; X < P.Width; ++X)
                for (int C = 0; C < Channels; ++C)
                    Wrong += P.Line(Y)[X * Channels + C] != Pixel_Byte(X, Y, C);
        return Wrong;
    }

    Picture P;
};

// Bytes with a number at position At.
std::string With(std::string Bytes, std::size_t At, std::uint32_t Value, int Size) {
    return Bytes.replace(At, static_cast<std::size_t>(Size), Number_Bytes(Value, Size));
}

TEST_F(Bitmap, PixelsOfBothDepthsAndDirections) {
    for (const int Bits : {8, 24})
        for (const bool Top_Down : {false, true})
            for (const int Width : {1, 2, 3, 4, 5}) {
                const Bitmap_Spec B{
                    .Width = Width, .Height = 7, .Bits = Bits, .Top_Down = Top_Down};
                ASSERT_EQ(Read(B), Bitmap_Fault::None);
                EXPECT_EQ(P.Width, Width);
                EXPECT_EQ(P.Height, 7);
                EXPECT_EQ(P.Bits, Bits);
                EXPECT_EQ(Wrong_Pixels(), 0) << Bits << " bits, width " << Width;
            }
}

TEST_F(Bitmap, LargerThanAPiece) {
    ASSERT_EQ(Read({.Width = 1201, .Height = 1100, .Bits = 24}), Bitmap_Fault::None);
    EXPECT_EQ(Wrong_Pixels(), 0);
}

TEST_F(Bitmap, LongHeadersAndGaps) {
    for (const int Header_Size : {40, 108, 124})
        for (const int Bits : {8, 24}) {
            const Bitmap_Spec B{
                .Width = 5, .Height = 3, .Bits = Bits, .Header_Size = Header_Size, .Gap = 6};
            ASSERT_EQ(Read(B), Bitmap_Fault::None);
            EXPECT_EQ(Wrong_Pixels(), 0);
            if (Bits != 8) continue;
            EXPECT_EQ(P.Palette[200].Blue, 200);
            EXPECT_EQ(P.Palette[200].Green, 55);
            EXPECT_EQ(P.Palette[200].Red, 200 ^ 0x55);
            EXPECT_EQ(P.Palette[200].Zero, 100) << "kept as it stands";
        }
}

TEST_F(Bitmap, PalettesOfFewerColours) {
    const Bitmap_Spec Few{.Width = 4, .Height = 2, .Bits = 8, .Nb_Colours = 16};
    ASSERT_EQ(Read(Few), Bitmap_Fault::None);
    EXPECT_EQ(P.Palette[15].Blue, 15);
    EXPECT_EQ(P.Palette[16].Green, 0) << "pixels are no colours";
    EXPECT_EQ(P.Palette.size(), 256u);
    EXPECT_EQ(Wrong_Pixels(), 0);
    Bitmap_Spec Told = Few;
    for (const int Count : {0, 256, 100'000}) {
        Told.Colours_Told = Count;
        ASSERT_EQ(Read(Told), Bitmap_Fault::None);
        EXPECT_EQ(P.Palette[15].Blue, 15) << Count;
        EXPECT_EQ(P.Palette[16].Green, 0) << Count;
    }
}

TEST_F(Bitmap, EveryPictureHasItsOwnId) {
    ASSERT_EQ(Read(Bitmap_Spec{}), Bitmap_Fault::None);
    const std::uint64_t Id = P.Id;
    ASSERT_EQ(Read(Bitmap_Spec{}), Bitmap_Fault::None);
    EXPECT_NE(P.Id, Id);
}

TEST_F(Bitmap, WhatIsRefused) {
    const std::string Good = Bitmap_Bytes({.Width = 5, .Height = 3});
    for (const int Bits : {0, 1, 4, 16, 32, 65535})
        EXPECT_EQ(Read(Bitmap_Spec{.Bits = Bits}), Bitmap_Fault::Depth) << Bits;
    EXPECT_EQ(Read(Bitmap_Spec{.Bits = 8, .Compression = 1}), Bitmap_Fault::Compressed);
    EXPECT_EQ(Read(Bitmap_Spec{.Planes = 3}), Bitmap_Fault::Not_A_Bitmap);
    EXPECT_EQ(Read("P" + Good.substr(1)), Bitmap_Fault::Not_A_Bitmap);
    EXPECT_EQ(Read(""), Bitmap_Fault::Not_A_Bitmap);
    for (const std::uint32_t Header : {12u, 39u, 0xFFFFFFFFu})
        EXPECT_EQ(Read(With(Good, 14, Header, 4)), Bitmap_Fault::Not_A_Bitmap);
    for (const std::uint32_t Side : {0u, 0x80000000u}) {
        EXPECT_EQ(Read(With(Good, 18, Side, 4)), Bitmap_Fault::Size);
        EXPECT_EQ(Read(With(Good, 22, Side, 4)), Bitmap_Fault::Size);
    }
    EXPECT_EQ(Picture_Read(Dir.Path("Absent.bmp"), P), Bitmap_Fault::Not_There);
    EXPECT_TRUE(P.Is_Empty());
}

TEST_F(Bitmap, NothingIsBelievedBeforeTheLengthBearsItOut) {
    const std::string Good = Bitmap_Bytes({.Width = 5, .Height = 3});
    for (std::size_t Size = 54; Size < Good.size(); ++Size)
        ASSERT_EQ(Read(Good.substr(0, Size)), Bitmap_Fault::Cut_Short) << Size;
    EXPECT_EQ(Read(With(Good, 18, 0x7FFFFFFF, 4)), Bitmap_Fault::Cut_Short);
    EXPECT_EQ(Read(With(Good, 22, 0x7FFFFFFF, 4)), Bitmap_Fault::Cut_Short);
    EXPECT_EQ(Read(With(Good, 22, 0x80000001, 4)), Bitmap_Fault::Cut_Short);
    for (const std::uint32_t At : {0u, 53u, 55u, 0xFFFFFFFFu})
        EXPECT_EQ(Read(With(Good, 10, At, 4)), Bitmap_Fault::Cut_Short) << At;
    EXPECT_TRUE(P.Is_Empty());
}

TEST_F(Bitmap, TheTextNamesTheFileInBothLanguages) {
    for (const auto Fault : {Bitmap_Fault::Not_There, Bitmap_Fault::Not_A_Bitmap,
                             Bitmap_Fault::Depth, Bitmap_Fault::Compressed, Bitmap_Fault::Size,
                             Bitmap_Fault::Cut_Short, Bitmap_Fault::No_Memory}) {
        Language = "US";
        const std::string English = Bitmap_Fault_Text(Fault, "C:\\Map.bmp");
        Language = "FR";
        const std::string French = Bitmap_Fault_Text(Fault, "C:\\Map.bmp");
        EXPECT_NE(English, French);
        EXPECT_TRUE(English.ends_with(":\r\nC:\\Map.bmp")) << English;
        EXPECT_TRUE(French.ends_with(" :\r\nC:\\Map.bmp")) << French;
    }
}

}  // namespace
