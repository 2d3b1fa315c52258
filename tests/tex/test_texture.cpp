// tests/tex/test_texture.cpp - every format to a picture and to a bitmap, and what is damaged.
#include "tex/texture.h"

#include <fstream>
#include <iterator>

#include "support/bitmap_file.h"
#include "support/program_test.h"
#include "support/texture_file.h"

namespace {

using Fault = Texture_Fault;

// "1F 7C" as bytes; blanks are for the reader.
std::string Bytes_Of(std::string_view Hex) {
    std::string Out;
    std::string Digits;
    for (const char C : Hex)
        if (C != ' ') Digits += C;
    for (std::size_t I = 0; I + 1 < Digits.size(); I += 2)
        Out += static_cast<char>(std::stoi(Digits.substr(I, 2), nullptr, 16));
    return Out;
}

class Texture : public Program_Test {
protected:
    Texture() {
        for (std::size_t I = 0; I < 256; ++I) {
            const auto V = static_cast<Byte>(I);
            Pal[I] = {.Blue = V, .Green = static_cast<Byte>(255 - V), .Red = 7, .Zero = 0};
        }
    }
    Fault Read(const std::string& Bytes) {
        Dir.Write("t", Bytes);
        return Texture_Read(Dir.Path("t"), Pal, P, Text);
    }
    // The pixels as the file form stores them, from the first stored row.
    std::string Rows() const {
        std::string Out;
        for (Long Y = P.Height - 1; Y >= 0; --Y)
            Out.append(reinterpret_cast<const char*>(P.Line(Y)), P.Stride);
        return Out;
    }

    Palette Pal{};
    Picture P;
    std::string Text;
};

TEST_F(Texture, EveryLayoutOfTheTable) {
    const std::string None(4, '\0'), Two = Bytes_Of("1F7C E003 FFFF EEEE  0000 0180 0F00 EEEE");
    const std::string Four = Bytes_Of("010203FF 0405067F 070809FF  0A0B0CFF 0D0E0FFF 101112FF");
    const std::string Eight = Bytes_Of("000102EE FFFEFDEE");
    const std::string Of_8 = Bytes_Of("00FF55 01FE54 02FD57 000000  FF00AA FE01AB FD02A8 000000");
    const std::string Of_32 = Bytes_Of("010203 7D4B03 070809 000000  0A0B0C 0D0E0F 101112 000000");
    const std::string Of_555 = Bytes_Of("F800F8 00F800 F8F8F8 000000  000000 080000 780000 000000");
    const std::string Of_565 = Bytes_Of("F88078 007C00 F8FCF8 000000  000000 080080 780000 000000");
    const std::string Of_444 = Bytes_Of("F3545A F59000 F0F0F0 000000  F59000 7B4300 F59000 000000");
    const std::vector<std::uint32_t> Masks_444 = {0xF00, 0xF0, 0xF};
    struct {
        Texture_Spec Made;
        std::string Rows, Name;
    } const Table[] = {
        {{8, None, 1078, 3, 2, Eight}, Of_8, "Bmp 8 Bits 3x2"},
        {{8, None, 1098, 3, 2, Eight}, Of_8, "Bmp 8 Bits 3x2 \xE9tendu"},
        {{16, None, 54, 3, 2, Two}, Of_555, "Bmp 16 Bits 3x2 5-5-5"},
        {{16, None, 74, 3, 2, Two}, Of_555, "Bmp 16 Bits 3x2 \xE9tendu 5-5-5"},
        {{16, "masks", 66, 3, 2, Two}, Of_565, "Bmp 16 Bits 3x2 5-6-5"},
        {{16, "masks", 86, 3, 2, Two}, Of_565, "Bmp 16 Bits 3x2 \xE9tendu 5-6-5"},
        {{16, "masks", 66, 3, 2, Two, Masks_444}, Of_444, "Bmp 16 Bits 3x2 4-4-4"},
        {{16, "masks", 86, 3, 2, Two, Masks_444}, Of_444, "Bmp 16 Bits 3x2 \xE9tendu 4-4-4"},
        {{24, None, 54, 1, 2, "abcdefgh"}, "abcdefgh", "Bmp 24 Bits 1x2"},
        {{32, None, 54, 3, 2, Four}, Of_32, "Bmp 32 Bits 3x2"},
        {{32, None, 74, 3, 2, Four}, Of_32, "Bmp 32 Bits 3x2 \xE9tendu"},
    };
    for (const auto& Row : Table) {
        const std::string Bytes = Texture_Bytes(Row.Made);
        ASSERT_EQ(Read(Bytes), Fault::None) << Row.Name;
        EXPECT_EQ(Rows(), Row.Rows) << Row.Name;
        EXPECT_EQ(Text, Row.Name);
        EXPECT_EQ(Read(Bytes.substr(0, Bytes.size() - 1)), Fault::Unsupported) << "cut short";
        EXPECT_TRUE(P.Is_Empty() && Text.empty());
    }
}

TEST_F(Texture, BlocksAboveBelowAndEqual) {
    // Two columns of blocks, then a second row of blocks; E4 holds the indices 0, 1, 2, 3.
    const std::string Above = Bytes_Of("FFFF 0000 E4 00 55 FF"),
                      Below = Bytes_Of("0000 FFFF E4000000");
    const std::string Equal = Bytes_Of("1F00 1F00 E4 AA 1B FF");
    const std::string Of_Above = Bytes_Of("F8FCF8 000000 A5A8A5 535453");
    const std::string Of_Below = Bytes_Of("000000 F8FCF8 7C7E7C 000000");
    const std::string Blue = Bytes_Of("F80000"), Black(3, '\0');
    const auto Times = [](int Nb, const std::string& What) {
        std::string Out;
        for (int I = 0; I < Nb; ++I) Out += What;
        return Out;
    };
    const std::string First = Of_Above + Of_Below + Times(4, Bytes_Of("F8FCF8")) + Times(4, Black) +
                              Times(8, Black) + Times(4, Bytes_Of("535453")) + Times(4, Black);
    const std::string Half = Times(3, Blue) + Black;
    const std::string Second =
        Half + Half + Times(8, Blue) + Times(2, Black + Times(3, Blue)) + Times(8, Black);
    Texture_Spec Made{16, "DXT1", 74, 8, 8, Above + Below + Equal + Equal};
    ASSERT_EQ(Read(Texture_Bytes(Made)), Fault::None);
    EXPECT_EQ(Rows(), First + Second);
    EXPECT_EQ(Text, "Bmp 16 Bits 8x8 \xE9tendu DXT1");
    const std::string Alpha(8, '\x5A');
    Made.Compression = "DXT3";
    Made.Pixels = Alpha + Above + Alpha + Below + Alpha + Equal + Alpha + Equal;
    ASSERT_EQ(Read(Texture_Bytes(Made)), Fault::None);
    EXPECT_EQ(Rows(), First + Second) << "colours are the last half of a block";
    EXPECT_EQ(Text, "Bmp 16 Bits 8x8 \xE9tendu DXT3");
}

// Indices with runs of all lengths, repeated strings and noise; packed they have runs, literals and
// skipped bytes, and names of pairs wherever one fits.
std::string R8(int Number, const char* Form) {
    std::ifstream In(TEST_DATA_DIR "/r8/" + std::to_string(Number) + Form, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

TEST_F(Texture, R8RawAndCompressed) {
    for (const int Number : {1, 2, 3}) {
        const std::string Indices = R8(Number, ".raw");
        std::string Expected;
        for (const char C : Indices) Expected += {C, static_cast<char>(~C), 7};
        ASSERT_EQ(Read(Indices), Fault::None);
        EXPECT_TRUE(Rows() == Expected) << Number;
        EXPECT_EQ(Text, "Texture type .R8 256x256");
        ASSERT_EQ(Read(R8(Number, ".packed")), Fault::None) << Number;
        EXPECT_TRUE(Rows() == Expected) << Number;
        EXPECT_EQ(Text,
                  "Texture type .R8 compress\xE9"
                  "e 256x256");
    }
}

// The codes of 516 runs of 127 and one of 4, with the byte that is not read.
std::vector<std::uint32_t> Plain_Codes() {
    std::vector<std::uint32_t> Codes;
    for (int I = 0; I < 516; ++I) Codes.insert(Codes.end(), {127, 9});
    Codes.insert(Codes.end(), {4, 9, 1});
    return Codes;
}

TEST_F(Texture, DamagedR8) {
    const auto With_End = [](std::vector<std::uint32_t> Front, std::vector<std::uint32_t> Back) {
        Front.insert(Front.end(), Back.begin(), Back.end());
        Front.push_back(511);
        return Packed_Codes(Front);
    };
    const std::vector<std::uint32_t> Good = Plain_Codes();
    const std::vector<std::uint32_t> Short(Good.begin(), Good.end() - 3);
    ASSERT_EQ(Read(With_End(Good, {})), Fault::None);
    ASSERT_EQ(Read(With_End(Good, {}) + "behind the end"), Fault::None);
    const std::vector<std::uint32_t> Doubling = {1, 1, 256, 1, 257, 1, 258, 1, 259, 1};
    std::vector<std::uint32_t> Endless = Doubling;
    while (Endless.size() < 44'000) Endless.insert(Endless.end(), {260, 1});
    const std::pair<std::string, const char*> Damage[] = {
        {std::string(54, '\0'), "no end within 54 bytes"},
        {std::string(65'535, '\0'), "no end within 65535 bytes"},
        {Packed_Codes(Good), "no end code"},
        {With_End(Short, {}), "too few indices"},
        {With_End(Short, {5, 9, 1}), "one index too many"},
        {With_End(Good, {1, 1, 1}), "more indices behind"},
        {With_End(Short, {4, 9}), "the last byte counts for nothing"},
        {With_End(Short, {132, 9, 9, 9, 9}), "literals up to the byte that is not read"},
        {With_End({5, 256}, Good), "a pair that ends in a name"},
        {With_End(Endless, {}), "more than can be worked on"},
        {Packed_Codes({511}) + std::string(60, '\0'), "nothing in front of the end"},
    };
    for (const auto& [Bytes, What] : Damage) EXPECT_EQ(Read(Bytes), Fault::Damaged) << What;
    EXPECT_EQ(Read(With_End(Short, {132, 9, 9, 9, 9, 1})), Fault::None) << "literals that fit";
    EXPECT_EQ(Read(With_End(Short, {4, 9, 0, 1})), Fault::None) << "a skip of nothing";
}

TEST_F(Texture, WhatIsNoTexture) {
    const std::string None(4, '\0'), Room(64, 'x');
    EXPECT_EQ(Read(std::string(53, 'B')), Fault::Too_Short);
    EXPECT_EQ(Read(std::string(65'537, 'x')), Fault::Unsupported);
    EXPECT_EQ(Texture_Read(Dir.Path("none"), Pal, P, Text), Fault::Not_There);
    const std::string Long_Bitmap =
        Texture_Bytes({24, None, 54, 146, 148, {}}) + std::string(65'482, 'x');
    ASSERT_EQ(Long_Bitmap.size(), 65'536U);
    EXPECT_EQ(Read(Long_Bitmap), Fault::None) << "a bitmap of the length of an R8";
    EXPECT_EQ(Text, "Bmp 24 Bits 146x148");
    const Texture_Spec Wrong[] = {{24, None, 74, 4, 4, Room},
                                  {24, None, 58, 4, 4, Room},
                                  {8, None, 54, 4, 4, Room},
                                  {16, None, 66, 4, 4, Room},
                                  {16, "DXT1", 54, 4, 4, Room},
                                  {16, "DXT5", 74, 4, 4, Room},
                                  {16, "masks", 54, 4, 4, Room},
                                  {32, "masks", 66, 4, 4, Room},
                                  {4, None, 54, 4, 4, Room},
                                  {16, "DXT1", 74, 6, 4, Room},
                                  {16, "DXT3", 74, 4, 2, Room},
                                  {32, None, 54, 0, 4, Room},
                                  {24, None, 54, 4, 0, Room},
                                  {24, None, 54, 4, 0xFFFFFFFC, Room},
                                  {24, None, 54, 8193, 1, std::string(24'580, 'x')},
                                  {32, None, 54, 1, 0x40000001, Room}};
    for (const Texture_Spec& Made : Wrong)
        EXPECT_EQ(Read(Texture_Bytes(Made)), Fault::Unsupported)
            << Made.Bits << " at " << Made.Off << ", " << Made.Width << "x" << Made.Height;
    std::string Untagged = Texture_Bytes({32, None, 74, 4, 4, Room});
    Untagged[54] = 'f';
    EXPECT_EQ(Read(Untagged), Fault::Unsupported);
}

class Texture_File : public Texture {
protected:
    Int Write(const std::string& Bytes) {
        Dir.Write("t", Bytes);
        Int Error = -1;
        Texture_To_Bmp(Dir.Path("t"), Pal, Dir.Path("out.bmp"), Text, Error);
        return Error;
    }
};

TEST_F(Texture_File, HeadersOfBothKinds) {
    const Texture_Spec Made{32, std::string(4, '\0'), 54, 1, 2, Bytes_Of("010203FF 040506FF")};
    EXPECT_EQ(Write(Texture_Bytes(Made)), 0);
    EXPECT_EQ(Dir.Read("out.bmp"),
              "BM" + Bytes_Of("3E000000 00000000 36000000 28000000 01000000 02000000 0100 1800"
                              "00000000 08000000 120B0000 120B0000 00000000 00000000"
                              "01020300 04050600"));
    Dir.Write("App/Temp/$Tex$.bmp", "left behind");
    EXPECT_EQ(Write(R8(1, ".raw")), 0);
    const std::string Bitmap = Dir.Read("out.bmp");
    EXPECT_EQ(Bitmap.substr(0, 54), "BM" + Bytes_Of("36000300 00000000 36000000 28000000 00010000"
                                                    "00010000 0100 1800 00000000 00000300 00000000"
                                                    "00000000 00000000 00000000"));
    EXPECT_TRUE(Read(R8(1, ".raw")) == Fault::None && Bitmap.substr(54) == Rows());
    EXPECT_FALSE(Dir.Has("App/Temp/$Tex$.bmp"));
}

TEST_F(Texture_File, TrueColourIsCopiedAndNothingIsLost) {
    const std::string Whole =
        Texture_Bytes({24, std::string(4, '\0'), 54, 1, 2, "abcdefgh"}) + "more behind";
    EXPECT_EQ(Write(Whole), 0);
    EXPECT_EQ(Dir.Read("out.bmp"), Whole);
    EXPECT_EQ(Write(std::string(60, '\0')), 1);
    EXPECT_EQ(Text, "");
    EXPECT_EQ(Write("short"), 2);
    EXPECT_EQ(Dir.Read("out.bmp"), Whole) << "left as it was";
    Int Error = 0;
    const std::string Itself = Dir.Path("OUT.bmp");
    EXPECT_EQ(Texture_To_Bmp(Itself, Pal, Itself, Text, Error), Fault::Same_File);
    EXPECT_EQ(Error, 1);
    EXPECT_EQ(Dir.Read("out.bmp"), Whole);
    EXPECT_EQ(Texture_To_Bmp(Itself, Pal, Dir.Path("no/dir.bmp"), Text, Error), Fault::Not_Written);
}

TEST_F(Texture_File, ALackingPaletteIsToldOnce) {
    The_Program.Pal_Lacks = 1;
    EXPECT_EQ(Write(Texture_Bytes({24, std::string(4, '\0'), 54, 1, 2, "abcdefgh"})), 0);
    EXPECT_TRUE(Host_Of_Test.Boxes.empty()) << "no R8 was shown yet";
    EXPECT_EQ(Write(R8(1, ".raw")), 0);
    EXPECT_EQ(Write(R8(1, ".raw")), 0);
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_NE(Host_Of_Test.Boxes[0].Text.find("Fs5.pal"), std::string::npos);
}

}  // namespace
