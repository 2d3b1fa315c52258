// tests/platform/win32/test_process.cpp - a child's window and its standard streams.
#include "platform/process.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <fstream>

#include "platform/paths.h"
#include "support/environment.h"
#include "support/run_again.h"
#include "support/stand_in.h"

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

TEST(Win32_Process, StandardOutputStaysOurs) {
    const Temp_Dir Dir;
    Put_Stand_In(Dir, "talk.exe", "print printed\n");
    const auto Open = [&Dir](const char* Name) {
        return CreateFileW(Dir.Native(Name).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                           CREATE_NEW, 0, nullptr);
    };
    const HANDLE Out = Open("out"), Err = Open("err");
    const HANDLE Former_Out = GetStdHandle(STD_OUTPUT_HANDLE);
    const HANDLE Former_Err = GetStdHandle(STD_ERROR_HANDLE);
    SetStdHandle(STD_OUTPUT_HANDLE, Out);
    SetStdHandle(STD_ERROR_HANDLE, Err);
    const bool Started = Process_Run(Dir.Path("talk.exe"), true);
    SetStdHandle(STD_OUTPUT_HANDLE, Former_Out);
    SetStdHandle(STD_ERROR_HANDLE, Former_Err);
    CloseHandle(Out);
    CloseHandle(Err);
    EXPECT_TRUE(Started);
    EXPECT_EQ(Dir.Read("out"), "");
    EXPECT_EQ(Dir.Read("err").substr(0, 7), "printed");
}
