// tests/platform/test_files.cpp - listing, matching, copying, and both ways of writing.
#include "platform/files.h"

#include <gtest/gtest.h>

#include "support/temp_dir.h"

using Names = std::vector<std::string>;

TEST(Files, MatchingTakesStemLiterally) {
    const Temp_Dir Dir;
    for (const char* Name : {"isle_3.bgl", "Isle_2.BGL", "isle_9001.bgl", "isle.bgl", "isle_.txt",
                             "island_3.bgl", "sub/isle_4.bgl"})
        Dir.Write(Name, "x");
    ASSERT_TRUE(Dir_Create(Dir.Path("isle_5.bgl")));
    EXPECT_EQ(Files_Matching(Dir.Path("ISLE"), "_*.bgl"),
              (Names{Dir.Path("Isle_2.BGL"), Dir.Path("isle_3.bgl"), Dir.Path("isle_9001.bgl")}));
    for (const std::string& Stem : {Dir.Path("is*e"), Dir.Path("?sle"), Dir.Path("none\\isle")})
        EXPECT_EQ(Files_Matching(Stem, "_*.bgl"), Names{}) << Stem;
    EXPECT_EQ(Files_Matching("", "*"), Names{});
}

TEST(Files, ListingIsInOrderOfCapitals) {
    const Temp_Dir Dir;
    for (const char* Name : {"b.ref", "A.ref", "_.ref", "c.ref", "B2.ref"}) Dir.Write(Name, "");
    ASSERT_TRUE(Dir_Create(Dir.Path("aa.ref")));
    EXPECT_EQ(Dir_Files(Dir.Path()), (Names{"A.ref", "b.ref", "B2.ref", "c.ref", "_.ref"}));
    EXPECT_EQ(Dir_Files(Dir.Path("none")), Names{});
}

TEST(Files, AFileIsNoDirectory) {
    const Temp_Dir Dir;
    Dir.Write("file", "text");
    ASSERT_TRUE(Dir_Create(Dir.Path("new\\deep")));
    EXPECT_TRUE(Dir_Create(Dir.Path("NEW\\Deep"))) << "it stands already";
    EXPECT_TRUE(Dir_Exists(Dir.Path("new\\deep\\")));
    EXPECT_FALSE(File_Exists(Dir.Path("new")));
    EXPECT_FALSE(Dir_Exists(Dir.Path("file")));
    EXPECT_FALSE(Dir_Create(Dir.Path("file"))) << "a file is in the way";
    EXPECT_FALSE(File_Delete(Dir.Path("new\\deep"))) << "an empty directory stays";
    EXPECT_TRUE(Dir.Has("new/deep"));
    EXPECT_EQ(File_Read(Dir.Path("new")), std::nullopt);
    EXPECT_TRUE(File_Delete(Dir.Path("FILE")));
    EXPECT_FALSE(File_Delete(Dir.Path("FILE")));
}

TEST(Files, CopyAndReadAreByteForByte) {
    const Temp_Dir Dir;
    std::string Bytes;
    for (int I = 0; I < 300'000; ++I) Bytes += static_cast<char>(I * 7 + I / 256);
    Dir.Write("from", Bytes);
    Dir.Write("to", "an older and shorter one");
    EXPECT_TRUE(File_Copy(Dir.Path("from"), Dir.Path("to")));
    EXPECT_TRUE(File_Copy(Dir.Path("to"), Dir.Path("to"))) << "onto itself";
    EXPECT_FALSE(File_Copy(Dir.Path("none"), Dir.Path("to")));
    EXPECT_FALSE(File_Copy(Dir.Path("from"), Dir.Path("none\\to")));
    EXPECT_TRUE(File_Read(Dir.Path("to")) == Bytes);
}

class Writing : public testing::TestWithParam<File_Writer::Mode> {
protected:
    const Temp_Dir Dir;
};

TEST_P(Writing, ReplacesTheFileOfAnyCase) {
    Dir.Write("Source.ASM", "old");
    const std::string Long(200'000, 'x');
    File_Writer Out(Dir.Path("source.asm"), GetParam());
    Out.Put("first\r\n");
    Out.Put(Long);
    Out.Put("last\r\n");
    EXPECT_TRUE(Out.Commit());
    EXPECT_TRUE(Out.Commit()) << "again";
    EXPECT_EQ(Dir_Files(Dir.Path()).size(), 1U);
    EXPECT_EQ(File_Read(Dir.Path("SOURCE.asm")), "first\r\n" + Long + "last\r\n");
}

TEST_P(Writing, WhatCannotBeMadeIsNotOpen) {
    Dir.Write("dir/inside", "");
    Dir.Write("file", "kept");
    for (const std::string& Path :
         {Dir.Path("dir"), Dir.Path("none\\file"), Dir.Path("file\\below"), std::string()}) {
        File_Writer Out(Path, GetParam());
        EXPECT_FALSE(Out.Is_Open()) << Path;
        Out.Put("x");
        EXPECT_FALSE(Out.Commit());
    }
    EXPECT_EQ(Dir.Read("file"), "kept");
    EXPECT_EQ(Dir_Files(Dir.Path()), Names{"file"});
}

INSTANTIATE_TEST_SUITE_P(Files, Writing,
                         testing::Values(File_Writer::Mode::In_Place, File_Writer::Mode::Safe));

TEST(Files, WithoutACommitASafeFileIsDroppedAndOneInPlaceStays) {
    const Temp_Dir Dir;
    Dir.Write("p.LWM", "old");
    Dir.Write("s.asm", "old");
    {
        File_Writer Safe(Dir.Path("p.LWM"), File_Writer::Mode::Safe);
        File_Writer In_Place(Dir.Path("s.asm"), File_Writer::Mode::In_Place);
        EXPECT_EQ(Dir.Read("s.asm"), "") << "the old one went first";
        Safe.Put(std::string(100'000, 'n'));
        In_Place.Put("line");
    }
    EXPECT_EQ(Dir.Read("p.LWM"), "old");
    EXPECT_EQ(Dir.Read("s.asm"), "line");
    EXPECT_EQ(Dir_Files(Dir.Path()), (Names{"p.LWM", "s.asm"})) << "no temporary file";
}
