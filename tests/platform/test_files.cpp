// tests/platform/test_files.cpp - listing, matching, copying, and both ways of writing.
#include <gtest/gtest.h>

#include "platform/files.h"
#include "platform/paths.h"
#include "platform/wildcard.h"
#include "support/temp_dir.h"

using Names = std::vector<std::string>;

namespace {

std::size_t Entries(const Temp_Dir& Dir) {
    std::size_t Nb = 0;
    for ([[maybe_unused]] const auto& Entry : std::filesystem::directory_iterator(Dir.Native()))
        ++Nb;
    return Nb;
}

}  // namespace

TEST(Wildcard, StarsAndQuestionMarks) {
    EXPECT_TRUE(Wildcard_Match("_2.BGL", "_*.bgl"));
    EXPECT_TRUE(Wildcard_Match("_9012.bgl", "_****.bgl"));
    EXPECT_TRUE(Wildcard_Match("_.bgl.bgl", "_*.bgl")) << "the first end is not the last";
    EXPECT_FALSE(Wildcard_Match("2.bgl", "_*.bgl"));
    EXPECT_FALSE(Wildcard_Match("_2.bgl2", "_*.bgl"));
    EXPECT_TRUE(Wildcard_Match("a\xE9z", "?\xC9?"));
    EXPECT_FALSE(Wildcard_Match("ab", "a?b"));
    EXPECT_TRUE(Wildcard_Match("", "**"));
    EXPECT_FALSE(Wildcard_Match("", "?"));
    EXPECT_FALSE(Wildcard_Match(std::string(50'000, 'a'), "*a*a*a*a*a*a*b")) << "and no hang";
}

TEST(Files, MatchingTakesStemLiterally) {
    const Temp_Dir Dir;
    for (const char* Name : {"isle_3.bgl", "Isle_2.BGL", "isle_9001.bgl", "isle.bgl", "isle_.txt",
                             "island_3.bgl", "sub/isle_4.bgl"})
        Dir.Write(Name, "x");
    ASSERT_TRUE(Dir_Create(Dir.Path("isle_5.bgl")));

    const std::string Stem = Dir.Path("ISLE");
    EXPECT_EQ(Files_Matching(Stem, "_*.bgl"),
              (Names{Dir.Path("Isle_2.BGL"), Dir.Path("isle_3.bgl"), Dir.Path("isle_9001.bgl")}));
    EXPECT_EQ(Files_Matching(Dir.Path("is*e"), "_*.bgl"), Names{});
    EXPECT_EQ(Files_Matching(Dir.Path("?sle"), "_*.bgl"), Names{});
    EXPECT_EQ(Files_Matching("", "*"), Names{});
    EXPECT_EQ(Files_Matching(Dir.Path("none\\isle"), "*"), Names{});
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
    EXPECT_TRUE(Dir.Read("to") == Bytes);
    EXPECT_TRUE(File_Copy(Dir.Path("to"), Dir.Path("to"))) << "onto itself";
    EXPECT_TRUE(File_Read(Dir.Path("to")) == Bytes);
    EXPECT_FALSE(File_Copy(Dir.Path("none"), Dir.Path("to")));
    EXPECT_FALSE(File_Copy(Dir.Path("from"), Dir.Path("none\\to")));
    EXPECT_TRUE(Dir.Read("to") == Bytes);
    Dir.Write("empty", "");
    EXPECT_EQ(File_Read(Dir.Path("empty")), "");
}

class Writing : public testing::TestWithParam<File_Writer::Mode> {
protected:
    const Temp_Dir Dir;
};

TEST_P(Writing, ReplacesTheFileOfAnyCase) {
    Dir.Write("Source.ASM", "old");
    const std::string Long(200'000, 'x');
    File_Writer Out(Dir.Path("source.asm"), GetParam());
    ASSERT_TRUE(Out.Is_Open());
    Out.Put("first\r\n");
    Out.Put(Long);
    Out.Put("last\r\n");
    EXPECT_TRUE(Out.Commit());
    EXPECT_TRUE(Out.Commit()) << "again";
    EXPECT_EQ(Entries(Dir), 1U);
    EXPECT_EQ(File_Read(Dir.Path("SOURCE.asm")), "first\r\n" + Long + "last\r\n");
}

TEST_P(Writing, WhatCannotBeMadeIsNotOpen) {
    Dir.Write("dir/inside", "");
    Dir.Write("file", "kept");
    for (const char* Name : {"dir", "none\\file", "file\\below"}) {
        File_Writer Out(Dir.Path(Name), GetParam());
        EXPECT_FALSE(Out.Is_Open()) << Name;
        Out.Put("x");
        EXPECT_FALSE(Out.Commit());
    }
    File_Writer Nowhere("", GetParam());
    EXPECT_FALSE(Nowhere.Is_Open());
    EXPECT_EQ(Dir.Read("file"), "kept");
    EXPECT_EQ(Entries(Dir), 2U);
}

INSTANTIATE_TEST_SUITE_P(Files, Writing,
                         testing::Values(File_Writer::Mode::In_Place, File_Writer::Mode::Safe),
                         [](const auto& Info) {
                             return Info.param == File_Writer::Mode::Safe ? "Safe" : "InPlace";
                         });

TEST(Files, ASafeFileAppearsAtCommitOnly) {
    const Temp_Dir Dir;
    Dir.Write("p.LWM", "old");
    {
        File_Writer Out(Dir.Path("p.LWM"), File_Writer::Mode::Safe);
        Out.Put(std::string(100'000, 'n'));
        EXPECT_EQ(Dir.Read("p.LWM"), "old");
    }
    EXPECT_EQ(Dir.Read("p.LWM"), "old") << "dropped";
    EXPECT_EQ(Entries(Dir), 1U) << "with its temporary file";

    File_Writer First(Dir.Path("p.LWM"), File_Writer::Mode::Safe);
    File_Writer Second(std::move(First));
    Second.Put("new");
    EXPECT_TRUE(Second.Commit());
    EXPECT_EQ(Dir.Read("p.LWM"), "new");
}

TEST(Files, AFileInPlaceGrowsAsItIsWritten) {
    const Temp_Dir Dir;
    Dir.Write("s.asm", "old");
    {
        File_Writer Out(Dir.Path("s.asm"), File_Writer::Mode::In_Place);
        EXPECT_EQ(Dir.Read("s.asm"), "") << "the old one went first";
        Out.Put("line");
    }
    EXPECT_EQ(Dir.Read("s.asm"), "line") << "kept without a commit";
}
