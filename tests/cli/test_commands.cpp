// tests/cli/test_commands.cpp - the commands as a script sees them: output and exit status.
#include "cli/commands.h"

#include <gtest/gtest.h>

#include <sstream>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "support/environment.h"
#include "support/program_test.h"
#include "support/rows.h"
#include "support/texture_file.h"

namespace {

std::string Replaced(std::string Text, const std::string& Old, const std::string& New) {
    for (std::size_t At = 0; (At = Text.find(Old, At)) != std::string::npos; At += New.size())
        Text.replace(At, Old.size(), New);
    return Text;
}

class Cli : public Program_Test {
protected:
    Cli() {
        Excl E;
        static_cast<Cell_Pos&>(E) = {384, 128, 0, 0};
        E.Chk_Excl[5] = 1;
        Tab_Excl.Append(E);
        NameBgl = Dir.Path("Out.bgl");
        NameBglExcl = Dir.Path("Out Excl.bgl");
        Projet_Open = 1;
        for (const char* Name : {"p.LWM", "p \xE9.LWM"})
            EXPECT_TRUE(Save_Project(1, Dir.Path(Name)));
        Model_Reset();
        Dir.Write("Out Excl.bgl", "old");
        Dir.Write("Out_3.bgl", "old");
        Dir.Write("text", "no project at all");
        Dir.Write("wrong", "a compressed R8 of more than 54 bytes that has no end code");
        Dir.Write("t.bmp", Texture_Bytes({16, "DXT1", 74, 4, 4, "12345678"}));
        Dir.Write("t.r8", std::string(65'536, '\7'));
        Dir.Write("p.pal", std::string(768, '\5'));
    }
    // Exit status, output and, behind "! ", complaints of a command line in which * stands for
    // the test's directory and ~ for a blank; so many characters of them, a line each.
    std::string Told(const Row_Cells& C) {
        std::vector<std::string> Words;
        std::istringstream In(C[0]);
        for (std::string Word; In >> Word;)
            Words.push_back(Replaced(Replaced(Word, "~", " "), "*", Dir.Native().string() + "/"));
        testing::internal::CaptureStdout();
        testing::internal::CaptureStderr();
        const std::string Status = std::to_string(Cli_Run(Words));
        const std::string Out = testing::internal::GetCapturedStdout();
        const std::string Err = testing::internal::GetCapturedStderr();
        std::string All = Status + "\n" + Out + (Err.empty() ? "" : "! " + Err);
        All = Replaced(Replaced(All, Dir.Path() + "\\", "*"), Dir.Native().string() + "/", "*");
        All = Replaced(Replaced(All, "\r", ""), Replaced(Dir.Path() + "\\", "\\", "\\\\"), "*");
        for (const char* Name : {"Terrafold", "Fs5.pal"})  // behind either divider
            for (const char* Divider : {"/", "\\\\"})
                All = Replaced(All, std::string(Divider) + Name, std::string("\\") + Name);
        if (!All.empty() && All.back() == '\n') All.pop_back();
        return C.size() > 1 ? All.substr(0, std::stoul(C[1])) : All;
    }

    const Environment_Scope Home{"TERRAFOLD_HOME", Dir.Native("home").string()};
};

}  // namespace

TEST_F(Cli, WorkedExamples) {
    Expect_Rows("commands",
                {{"run", [&](const Row_Cells& C) { return Told(C); }},
                 {"bytes", [&](const Row_Cells& C) { return Dir.Read(C[0]).substr(54, 3); }},
                 {"has", [&](const Row_Cells& C) { return Dir.Has(C[0]) ? "yes" : "no"; }}});
    const auto Body = [](const std::string& File) { return File.substr(File.find("\r\n0010")); };
    EXPECT_EQ(Body(Dir.Read("copy.LWM")), Body(Dir.Read("p.LWM")));
}
