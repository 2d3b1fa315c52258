// tests/platform/test_file_reader.cpp - pieces of a file.
#include "platform/file_reader.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

namespace {

std::string Piece(File_Reader& File, std::uint64_t At, std::size_t Size) {
    std::vector<std::uint8_t> Bytes(Size);
    if (!File.Read(At, Bytes)) return "nothing";
    return {Bytes.begin(), Bytes.end()};
}

}  // namespace

TEST(File_Reader, PiecesInAnyOrderAndNothingBehindTheEnd) {
    const Temp_Dir Dir;
    Dir.Write("Some.bin", "abcdefgh");
    File_Reader File(Dir.Path("SOME.BIN"));
    EXPECT_EQ(File.Size(), 8u);
    EXPECT_EQ(Piece(File, 2, 3), "cde");
    EXPECT_EQ(Piece(File, 5, 3), "fgh") << "goes on where the last one ended";
    EXPECT_EQ(Piece(File, 0, 8), "abcdefgh");
    EXPECT_EQ(Piece(File, 8, 0), "");
    EXPECT_EQ(Piece(File, 6, 3), "nothing");
    EXPECT_EQ(Piece(File, 9, 0), "nothing");
    EXPECT_EQ(Piece(File, ~std::uint64_t{0}, 2), "nothing") << "an end that does not wrap";
    EXPECT_EQ(Piece(File, 6, 2), "gh") << "a refusal does no harm";
    std::filesystem::resize_file(Dir.Native("Some.bin"), 4);
    EXPECT_EQ(Piece(File, 2, 4), "nothing") << "cut short meanwhile";
    EXPECT_EQ(Piece(File, 2, 2), "cd");
}

TEST(File_Reader, WhatIsNoFile) {
    const Temp_Dir Dir;
    for (const std::string& Path : {Dir.Path("Absent"), Dir.Path(), std::string()}) {
        File_Reader File(Path);
        EXPECT_FALSE(File.Is_Open()) << Path;
        EXPECT_EQ(File.Size(), 0u);
        EXPECT_EQ(Piece(File, 0, 0), "nothing");
    }
}
