// tests/platform/test_files.cpp - paths, listing, matching, reading, and both ways of writing.
#include "platform/files.h"

#include <gtest/gtest.h>

#include <sstream>

#include "platform/file_reader.h"
#include "platform/paths.h"
#include "support/environment.h"
#include "support/rows.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

using Names = std::vector<std::string>;

namespace {

std::string Joined(const Names& All) {
    std::string Told;
    for (const std::string& Name : All) Told += "[" + Name + "]";
    return Told;
}

std::string Yes(bool Holds) {
    return Holds ? "yes" : "no";
}

// Acts, one of them after another in a directory of their own, which is * in the program's form
// and + in the system's; ~ is a blank.
class Acts {
public:
    std::string Told(const Row_Cells& C) {
        std::istringstream In(C[0]);
        std::string All;
        for (std::string Act; std::getline(In, Act, ';');) {
            const std::string Said = Do(Act);
            if (!Said.empty()) All += (All.empty() ? "" : " ") + Said;
        }
        for (std::size_t At; (At = All.find(Dir.Path() + "\\")) != std::string::npos;)
            All.replace(At, Dir.Path().size() + 1, "*");
        return All;
    }

private:
    std::string Do(const std::string& Act) {
        std::istringstream In(Act);
        std::string Verb, A, B;
        In >> Verb >> A >> B;
        for (std::string* Word : {&A, &B}) {
            std::replace(Word->begin(), Word->end(), '~', ' ');
            if (Word->starts_with('*')) *Word = Dir.Path(Word->substr(1));
        }
        if (Verb == "put") return Dir.Write(A, B), "";
        if (Verb == "in") return fs::current_path(Dir.Native(A)), "";
        if (Verb == "make") return Yes(Dir_Create(A));
        if (Verb == "file") return Yes(File_Exists(A));
        if (Verb == "dir") return Yes(Dir_Exists(A));
        if (Verb == "delete") return Yes(File_Delete(A));
        if (Verb == "copy") return Yes(File_Copy(A, B));
        if (Verb == "read") return File_Read(A).value_or("nothing");
        if (Verb == "list") return Joined(Dir_Files(A)) + ".";
        if (Verb == "match") return Joined(Files_Matching(A, B)) + ".";
        if (Verb == "locate") return File_Locate(A, B);
        if (Verb == "program")
            return Program_Path(A[0] == '+' ? Dir.Native(A.substr(1)) : Path_From_Utf8(A))
                .value_or("nothing");
        const auto Native = Native_Path(A);
        return !Native ? "nothing" : Yes(*Native == (B == "." ? Dir.Native() : Dir.Native(B)));
    }

    const Temp_Dir Dir;
    const fs::path Former_ = fs::current_path();
    const Environment_Scope Prefix_{"WINEPREFIX", Dir.Native("none").string()};

public:
    ~Acts() { fs::current_path(Former_); }
};

}  // namespace

TEST(Files, WorkedExamples) {
    Expect_Rows("files", {{"acts", [](const Row_Cells& C) { return Acts().Told(C); }}});
    EXPECT_EQ(Native_Path(std::string_view("\\tmp\0x", 6)), std::nullopt) << "not \\tmp";
}

TEST(Files, CopyAndPiecesAreByteForByte) {
    const Temp_Dir Dir;
    std::string Bytes;
    for (int I = 0; I < 300'000; ++I) Bytes += static_cast<char>(I * 7 + I / 256);
    Dir.Write("from", Bytes);
    Dir.Write("to", "an older and shorter one");
    EXPECT_TRUE(File_Copy(Dir.Path("from"), Dir.Path("to")));
    EXPECT_TRUE(File_Copy(Dir.Path("to"), Dir.Path("to"))) << "onto itself";
    EXPECT_TRUE(File_Read(Dir.Path("to")) == Bytes);

    File_Reader File(Dir.Path("FROM"));
    const auto Piece = [&](std::uint64_t At, std::size_t Size) {
        std::vector<std::uint8_t> Read(Size);
        return File.Read(At, Read) &&
               std::equal(Read.begin(), Read.end(), Bytes.begin() + At, Bytes.begin() + At + Size,
                          [](int A, char B) { return static_cast<char>(A) == B; });
    };
    EXPECT_EQ(File.Size(), Bytes.size());
    EXPECT_TRUE(Piece(2, 3) && Piece(5, 299'995) && Piece(0, 300'000) && Piece(300'000, 0));
    EXPECT_FALSE(Piece(299'998, 3) || Piece(300'001, 0));
    EXPECT_FALSE(Piece(~std::uint64_t{0}, 2)) << "an end that does not wrap";
    fs::resize_file(Dir.Native("from"), 4);
    EXPECT_FALSE(Piece(2, 4)) << "cut short meanwhile";
    EXPECT_TRUE(Piece(2, 2));
    for (const std::string& Path : {Dir.Path("Absent"), Dir.Path(), std::string()})
        EXPECT_FALSE(File_Reader(Path).Is_Open()) << Path;
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
