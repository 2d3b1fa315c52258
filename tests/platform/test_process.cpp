// tests/platform/test_process.cpp - starting programs, the same on every system.
#include "platform/arguments.h"
#include "platform/paths.h"
#include "platform/process_test.h"

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
    EXPECT_EQ(Run(Dir.Path("d\xC9J\xC0\\O.EXE") + " \xCEle \x80"), "[\xCEle][\x80]");
}

TEST_F(Process, WhatCannotBeStartedIsTold) {
    Dir.Write("noise.exe", "no program\n");
    Put_Tool("ok.exe");
    for (const std::string& Line :
         {std::string(), std::string("  \t"), std::string("\"\""), Dir.Path("none.exe") + " a",
          std::string("Q:\\bglc.exe a"), Dir.Path() + " a", Dir.Path("noise.exe"),
          Dir.Path("ok.exe") + std::string(" a\0b", 4)})
        EXPECT_FALSE(Process_Run(Line, true)) << Line;
}

TEST_F(Process, IsWaitedForAndItsStatusDoesNotCount) {
    Put_Stand_In(Dir, "fail.exe", "wait 300\ncopy fail.exe.plan done\nexit 3\n");
    EXPECT_TRUE(Process_Run(Dir.Path("fail.exe"), true));
    EXPECT_TRUE(Dir.Has("done"));
}

TEST_F(Process, StandardOutputStaysOurs) {
    Put_Stand_In(Dir, "talk.exe", "print printed\n");
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_TRUE(Process_Run(Dir.Path("talk.exe"), true));
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(testing::internal::GetCapturedStderr().substr(0, 7), "printed");
}

TEST(Arguments, APathWithBlanksNeedsNoQuotes) {
    const Temp_Dir Dir;
    Dir.Write("my isle.LWM", "");
    using Words = std::vector<std::string>;
    const std::string My = Dir.Native("my").string();
    EXPECT_EQ(Path_Of_Words(Words{My, "isle.LWM"}), Dir.Path("my isle.LWM"));
    EXPECT_EQ(Path_Of_Words(Words{My + " isle.LWM", "more"}), Dir.Path("my isle.LWM"));
    EXPECT_EQ(Path_Of_Words(Words{My, "lake.LWM"}), Dir.Path("my")) << "no such file";
    EXPECT_EQ(Path_Of_Words(Words{}), std::nullopt);
}
