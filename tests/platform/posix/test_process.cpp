// tests/platform/posix/test_process.cpp - tools of this system and those that wine runs.
#include <unistd.h>

#include <csignal>
#include <filesystem>

#include "platform/posix/command_line.h"
#include "platform/process_test.h"
#include "support/environment.h"
#include "support/rows.h"

namespace fs = std::filesystem;

namespace {

class Posix_Process : public Process {
protected:
    Posix_Process() {
        Dir.Write("prefix/drive_c/scasm.exe", "MZ");
        Dir.Write("prefix/dosdevices/keep", "");
        fs::create_directory_symlink("../drive_c", Dir.Native("prefix/dosdevices/c:"));
    }
    const Environment_Scope Prefix_{"WINEPREFIX", Dir.Native("prefix").string()};
};

}  // namespace

TEST(Command_Line, QuotesAndBackslashes) {
    Expect_Rows("arguments", {{"Parse_Arguments", [](const Row_Cells& C) {
                                   std::string Told;
                                   for (const std::string& Word : Parse_Arguments(C[0]))
                                       Told += "[" + Word + "]";
                                   return Told;
                               }}});
}

TEST_F(Posix_Process, WhatTheSystemWillNotRunIsTold) {
    Put_Tool("plain.exe");
    fs::permissions(Dir.Native("plain.exe"), fs::perms(0644));
    Dir.Write("lost.exe", "#!/none/such/shell\n");
    fs::permissions(Dir.Native("lost.exe"), fs::perms(0755));
    for (const char* Name : {"plain.exe", "lost.exe"}) EXPECT_EQ(Run(Dir.Path(Name)), "-") << Name;
}

TEST_F(Posix_Process, ANameWithoutADirectoryIsLookedForInThePath) {
    Put_Tool("bin/terrafold_stand_in");
    const Environment_Scope Path("PATH", "/none:" + Dir.Native("bin").string());
    EXPECT_EQ(Run("terrafold_stand_in a"), "[a]");
    EXPECT_EQ(Run("terrafold_other a"), "-");
    EXPECT_EQ(Run("bin\\terrafold_stand_in a"), "-");
}

TEST_F(Posix_Process, NativeToolsGetNativePaths) {
    Put_Tool("tool");
    Dir.Write("Out/Isle.ASM", "");
    EXPECT_EQ(Run(Dir.Path("tool") + " \"" + Dir.Path("out\\isle.asm") + "\" \"" +
                  Dir.Path("out\\\xEEle 2.bgl") + "\" C:\\X D:\\y sub\\z -o /a \xE9"),
              "[" + Dir.Native("Out/Isle.ASM").string() + "][" + Dir.Native("Out").string() +
                  "/\xEEle 2.bgl][" + Dir.Native("prefix/drive_c/X").string() +
                  "][D:\\y][sub\\z][-o][/a][\xE9]");
}

TEST_F(Posix_Process, WindowsProgramsRunByWine) {
    Dir.Write("Tools dir/Bglc.exe", "MZ not really");
    const std::string Line = "\"" + Dir.Path("tools dir\\bglc.exe") + "\" \"" +
                             Dir.Path("a b.asm") + "\" C:\\out.bgl \\\\host\\x rel\\y";
    const Environment_Scope Path("PATH", Dir.Native("bin").string());
    EXPECT_EQ(Run(Line), "-") << "no wine";
    Put_Tool("bin/wine");
    EXPECT_EQ(Run(Line), "[Z:" + Dir.Path("Tools dir\\Bglc.exe") + "][Z:" + Dir.Path("a b.asm") +
                             "][C:\\out.bgl][\\\\host\\x][rel\\y]");
    EXPECT_EQ(Run("c:\\SCASM.exe a"), "[c:\\SCASM.exe][a]");
}

TEST_F(Posix_Process, RunsUnderAHostThatIgnoresItsChildren) {
    Put_Stand_In(Dir, "slow", "wait 200\ntell " + Dir.Native("told").string() + "\n");
    const auto Former = std::signal(SIGCHLD, SIG_IGN);
    EXPECT_EQ(Run(Dir.Path("slow") + " done"), "[done]") << "waited for";
    const std::string Status = Run("cp \\proc\\self\\status " + Dir.Path("told"));
    std::signal(SIGCHLD, Former);
    const std::size_t At = Status.find("SigIgn:");
    ASSERT_NE(At, std::string::npos);
    const auto Ignored = std::stoull(Status.substr(At + 7), nullptr, 16);
    EXPECT_EQ(Ignored >> (SIGCHLD - 1) & 1, 0U) << "a tool can wait for children of its own";
}
