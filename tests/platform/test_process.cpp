// tests/platform/test_process.cpp - starting programs, the same on every system.
#include "platform/process.h"

#include <gtest/gtest.h>

#include "support/stand_in.h"

namespace fs = std::filesystem;

namespace {

class Process : public testing::Test {
protected:
    // A program that puts its arguments, each in brackets, into the file "told" beside it.
    void Put_Tool(const char* Name) const {
        Put_Stand_In(Dir, Name, "tell " + Dir.Native("told").string() + "\n");
    }
    // What the tool was told, "-" when it did not run.
    std::string Run(const std::string& Cmd_Line) const {
        fs::remove(Dir.Native("told"));
        const bool Started = Process_Run(Cmd_Line, true);
        const bool Ran = Dir.Has("told");
        EXPECT_EQ(Started, Ran) << Cmd_Line;
        return Ran ? Dir.Read("told") : "-";
    }

    const Temp_Dir Dir;
};

}  // namespace

TEST_F(Process, TheNameEndsWhereItNamesAFile) {
    Put_Tool("My Tools/bglc.exe");
    const std::string Tool = Dir.Path("my tools\\BGLC.exe");
    EXPECT_EQ(Run(Tool + "  \"one two\" three"), "[one two][three]") << "blanks, no quotes";
    EXPECT_EQ(Run("\"" + Tool + "\" a"), "[a]");
    EXPECT_EQ(Run(Dir.Path("My Tools\\bglc") + " a"), "[a]") << ".exe is added";
    EXPECT_EQ(Run("  " + Tool), "");
    Put_Tool("My.exe");
    EXPECT_EQ(Run(Tool + " a"), "[tools\\BGLC.exe][a]") << "the first name that is a file";
}

TEST_F(Process, ArgumentsArriveAsTheyAreMeant) {
    Put_Tool("D\xC3\xA9j\xC3\xA0/o.exe");
    EXPECT_EQ(Run("\"" + Dir.Path("D\xE9j\xE0\\o.exe") + R"(" "" "a b" x"y z"w "sub dir\\" \"q\")"),
              R"([][a b][xy zw][sub dir\]["q"])");
    EXPECT_EQ(Run(Dir.Path("d\xC9J\xC0\\O.EXE") + " \xCEle \x80"), "[\xCEle][\x80]")
        << "letters beyond ASCII";
}

TEST_F(Process, WhatCannotBeStartedIsTold) {
    EXPECT_FALSE(Process_Run("", true));
    EXPECT_FALSE(Process_Run("  \t", true));
    EXPECT_FALSE(Process_Run("\"\"", true));
    EXPECT_FALSE(Process_Run(Dir.Path("none.exe") + " a", true));
    EXPECT_FALSE(Process_Run("Q:\\bglc.exe a", true));
    EXPECT_FALSE(Process_Run(Dir.Path() + " a", true)) << "a directory";
    Dir.Write("noise.exe", "no program\n");
    EXPECT_FALSE(Process_Run(Dir.Path("noise.exe"), true));
    Put_Tool("ok.exe");
    EXPECT_FALSE(Process_Run(Dir.Path("ok.exe") + std::string(" a\0b", 4), true));
}

TEST_F(Process, IsWaitedForAndItsStatusDoesNotCount) {
    Put_Stand_In(Dir, "fail.exe", "wait 300\ncopy fail.exe.plan done\nexit 3\n");
    EXPECT_TRUE(Process_Run(Dir.Path("fail.exe"), true));
    EXPECT_TRUE(Dir.Has("done"));
}
