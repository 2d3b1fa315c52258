// tests/support/program_test.h - the fixture of every test that touches global state.
#pragma once

#include <gtest/gtest.h>

#include "core/program.h"
#include "support/environment.h"
#include "support/temp_dir.h"
#include "support/test_host.h"

/// Begins with the program as it starts, a recording host, a one-instance lock of the test's own,
/// and an empty directory as App_Path (with Ini_File and Msg_File in its Resource).
class Program_Test : public testing::Test {
protected:
    Program_Test() {
        Program_Reset();
        App_Path = Dir.Path("App");
        Ini_File = App_Path + "\\Resource\\Terrafold.Ini";
        Msg_File = App_Path + "\\Resource\\FicErr.txt";
        Dir.Write("App/Resource/.keep", "");
    }
    ~Program_Test() override { Program_Reset(); }

    Temp_Dir Dir;
    Test_Host Host_Of_Test;

private:
    Environment_Scope Lock_{"TERRAFOLD_LOCK", Dir.Native("lock").string()};
    Host_Scope Scope_{Host_Of_Test};
};
