// tests/platform/process_test.h - the fixture of tests that start programs.
#pragma once

#include <gtest/gtest.h>

#include <string>

#include "platform/process.h"
#include "support/stand_in.h"

class Process : public testing::Test {
protected:
    // A program that puts its arguments, each in brackets, into the file "told".
    void Put_Tool(const char* Name) const {
        Put_Stand_In(Dir, Name, "tell " + Dir.Native("told").string() + "\n");
    }
    // What the tool was told, "-" when it did not run.
    std::string Run(const std::string& Cmd_Line) const {
        std::filesystem::remove(Dir.Native("told"));
        const bool Started = Process_Run(Cmd_Line, true);
        const bool Ran = Dir.Has("told");
        EXPECT_EQ(Started, Ran) << Cmd_Line;
        return Ran ? Dir.Read("told") : "-";
    }

    const Temp_Dir Dir;
};
