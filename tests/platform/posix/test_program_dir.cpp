// tests/platform/posix/test_program_dir.cpp - directories of this system alone.
#include "platform/program_dir.h"

#include <gtest/gtest.h>

#include "platform/system.h"
#include "support/environment.h"
#include "support/temp_dir.h"

TEST(Program_Dir, ARelativeDataDirectoryIsIgnored) {
    const Temp_Dir Dir;
    const Environment_Scope Home("HOME", Dir.Native().string());
    const Environment_Scope Relative("XDG_DATA_HOME", "data");
    EXPECT_EQ(User_Data_Dir(), Dir.Native(".local/share/terrafold"));
}

TEST(Program_Dir, WhatCannotBeMadeIsTold) {
    EXPECT_FALSE(Prepare_App_Dir("\\proc\\self\\app"));
}
