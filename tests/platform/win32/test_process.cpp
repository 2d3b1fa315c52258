// tests/platform/win32/test_process.cpp - a child's window.
#include "platform/process.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <fstream>

#include "platform/paths.h"
#include "support/environment.h"
#include "support/run_again.h"
#include "support/temp_dir.h"

// Not a test: what another process does to tell how its window is to be shown.
TEST(Win32_Process, DISABLED_Report) {
    STARTUPINFOW Start{};
    GetStartupInfoW(&Start);
    const bool Says = (Start.dwFlags & STARTF_USESHOWWINDOW) != 0;
    std::ofstream(Path_From_Utf8(Told("TERRAFOLD_TELL"))) << (Says ? Start.wShowWindow : 999);
}

TEST(Win32_Process, AHiddenToolShowsNoWindow) {
    const Temp_Dir Dir;
    const Environment_Scope Tell("TERRAFOLD_TELL", Dir.Native("told").string());
    const std::string Line = "\"" + Program_Path(Own_Program().value()).value() +
                             "\" --gtest_brief=1 --gtest_also_run_disabled_tests"
                             " --gtest_filter=Win32_Process.DISABLED_Report";
    ASSERT_TRUE(Process_Run(Line, true));
    EXPECT_EQ(Dir.Read("told"), std::to_string(SW_HIDE));
    ASSERT_TRUE(Process_Run(Line, false));
    EXPECT_EQ(Dir.Read("told"), std::to_string(SW_SHOWNORMAL));
}
