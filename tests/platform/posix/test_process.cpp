// tests/platform/posix/test_process.cpp - starting tools; shell scripts stand in for them.
#include <fcntl.h>
#include <gtest/gtest.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>

#include "platform/posix/command_line.h"
#include "platform/process.h"
#include "support/environment.h"
#include "support/temp_dir.h"

namespace fs = std::filesystem;

namespace {

using Words = std::vector<std::string>;

class Posix_Process : public testing::Test {
protected:
    // A program that puts its arguments, each in brackets, into the file "told".
    void Put_Tool(const char* Name, std::string_view Head = "#!/bin/sh\n") const {
        Dir.Write(Name, std::string(Head) + "for A in \"$@\"; do printf '[%s]' \"$A\"; done >'" +
                            Dir.Native("told").string() + "'\n");
        fs::permissions(Dir.Native(Name), fs::perms(0755));
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
    const Environment_Scope Prefix_{"WINEPREFIX", Dir.Native("prefix").string()};
};

}  // namespace

TEST(Arguments, QuotesAndBackslashes) {
    const struct {
        const char* Text;
        Words Args;
    } Cases[] = {
        {"", {}},
        {"  a\t b ", {"a", "b"}},
        {R"("a b" c)", {"a b", "c"}},
        {R"(x"y z"w)", {"xy zw"}},
        {R"("" a)", {"", "a"}},
        {R"("C:\dir\file" \x\)", {R"(C:\dir\file)", R"(\x\)"}},
        {R"("C:\dir\\" b)", {R"(C:\dir\)", "b"}},
        {R"("C:\dir\" b)", {R"(C:\dir" b)"}},
        {R"(\"a \\\"b)", {R"("a)", R"(\"b)"}},
        {R"("say ""hi""")", {R"(say "hi")"}},
        {R"("never closed)", {"never closed"}},
    };
    for (const auto& Case : Cases) EXPECT_EQ(Parse_Arguments(Case.Text), Case.Args) << Case.Text;
}

TEST_F(Posix_Process, WhatTheSystemWillNotRunIsTold) {
    Put_Tool("plain.exe");
    fs::permissions(Dir.Native("plain.exe"), fs::perms(0644));
    EXPECT_EQ(Run(Dir.Path("plain.exe")), "-") << "not executable";
    Put_Tool("lost.exe", "#!/none/such/shell\n");
    EXPECT_EQ(Run(Dir.Path("lost.exe")), "-");
}

TEST_F(Posix_Process, ANameWithoutADirectoryIsLookedForInThePath) {
    Put_Tool("bin/terrafold_stand_in");
    const Environment_Scope Path("PATH", "/none:" + Dir.Native("bin").string());
    EXPECT_EQ(Run("terrafold_stand_in a"), "[a]");
    EXPECT_FALSE(Process_Run("terrafold_other a", true));
    EXPECT_FALSE(Process_Run("bin\\terrafold_stand_in a", true));
}

TEST_F(Posix_Process, AQuoteMayStayOpen) {
    Put_Tool("a tool");
    EXPECT_EQ(Run("\"" + Dir.Path("a tool")), "");
}

TEST_F(Posix_Process, ASignalDoesNotCount) {
    Dir.Write("die", "#!/bin/sh\nkill -9 $$\n");
    fs::permissions(Dir.Native("die"), fs::perms(0755));
    EXPECT_TRUE(Process_Run(Dir.Path("die"), true));
}

TEST_F(Posix_Process, NativeToolsGetNativePaths) {
    Put_Tool("tool");
    Dir.Write("Out/Isle.ASM", "");
    Dir.Write("prefix/drive_c/x", "");
    Dir.Write("prefix/dosdevices/keep", "");
    fs::create_directory_symlink("../drive_c", Dir.Native("prefix/dosdevices/c:"));
    const std::string Line = Dir.Path("tool") + " \"" + Dir.Path("out\\isle.asm") + "\" \"" +
                             Dir.Path("out\\\xEEle 2.bgl") + "\" C:\\X D:\\y sub\\z -o /a \xE9";
    EXPECT_EQ(Run(Line), "[" + Dir.Native("Out/Isle.ASM").string() + "][" +
                             Dir.Native("Out/\xC3\xAEle 2.bgl").string() + "][" +
                             Dir.Native("prefix/drive_c/x").string() +
                             "][D:\\y][sub\\z][-o][/a][\xC3\xA9]");
}

TEST_F(Posix_Process, WindowsProgramsRunByWine) {
    Dir.Write("Tools dir/Bglc.exe", "MZ not really");
    Dir.Write("prefix/drive_c/scasm.exe", "MZ");
    Dir.Write("prefix/dosdevices/keep", "");
    fs::create_directory_symlink("../drive_c", Dir.Native("prefix/dosdevices/c:"));
    const std::string Line = "\"" + Dir.Path("tools dir\\bglc.exe") + "\" \"" +
                             Dir.Path("a b.asm") + "\" C:\\out.bgl \\\\host\\x rel\\y";
    {
        const Environment_Scope Path("PATH", Dir.Native("none").string());
        EXPECT_EQ(Run(Line), "-") << "no wine";
    }
    Put_Tool("bin/wine");
    const Environment_Scope Path("PATH", Dir.Native("bin").string() + ":/usr/bin:/bin");
    EXPECT_EQ(Run(Line), "[Z:" + Dir.Path("Tools dir\\Bglc.exe") + "][Z:" + Dir.Path("a b.asm") +
                             "][C:\\out.bgl][\\\\host\\x][rel\\y]");
    EXPECT_EQ(Run("c:\\SCASM.exe a"), "[c:\\SCASM.exe][a]");
}

TEST_F(Posix_Process, RunsUnderAHostThatIgnoresItsChildren) {
    Dir.Write("slow", "#!/bin/sh\nsleep 0.2\necho done >'" + Dir.Native("told").string() + "'\n");
    fs::permissions(Dir.Native("slow"), fs::perms(0755));
    const auto Former = std::signal(SIGCHLD, SIG_IGN);
    const std::string Told = Run(Dir.Path("slow"));
    const std::string Status = Run("cp \\proc\\self\\status " + Dir.Path("told"));
    std::signal(SIGCHLD, Former);
    EXPECT_EQ(Told, "done\n") << "waited for";

    const std::size_t At = Status.find("SigIgn:");
    ASSERT_NE(At, std::string::npos);
    const auto Ignored = std::stoull(Status.substr(At + 7), nullptr, 16);
    EXPECT_EQ(Ignored >> (SIGCHLD - 1) & 1, 0U) << "a tool can wait for children of its own";
}

TEST_F(Posix_Process, StandardOutputStaysOurs) {
    Dir.Write("talk", "#!/bin/sh\necho printed\ncat\necho complained >&2\n");
    fs::permissions(Dir.Native("talk"), fs::perms(0755));
    const std::string Out = Dir.Native("out").string(), Err = Dir.Native("err").string();
    const pid_t Child = fork();
    if (Child == 0) {
        dup2(open(Out.c_str(), O_WRONLY | O_CREAT, 0600), STDOUT_FILENO);
        dup2(open(Err.c_str(), O_WRONLY | O_CREAT, 0600), STDERR_FILENO);
        _exit(Process_Run(Dir.Path("talk"), true) ? 0 : 1);
    }
    int Status = -1;
    waitpid(Child, &Status, 0);
    EXPECT_EQ(Status, 0);
    EXPECT_EQ(Dir.Read("out"), "");
    EXPECT_EQ(Dir.Read("err"), "printed\ncomplained\n") << "and standard input was empty";
}
