// tests/cli/test_commands.cpp - the commands as a script sees them: output and exit status.
#include "cli/commands.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "support/environment.h"
#include "support/program_test.h"
#include "support/texture_file.h"

namespace {

struct Outcome {
    int Status = 0;
    std::string Out;
    std::string Err;
};

Outcome Cli_On(const std::vector<std::string>& Words) {
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    Outcome O;
    O.Status = Cli_Run(Words);
    O.Out = testing::internal::GetCapturedStdout();
    O.Err = testing::internal::GetCapturedStderr();
    return O;
}

// The lines of a file behind the first two, which hold date and path.
std::string Body(const std::string& Bytes) {
    const std::size_t Second = Bytes.find("\r\n") + 2;
    return Bytes.substr(Bytes.find("\r\n", Second) + 2);
}

class Cli : public Program_Test {
protected:
    // A project with one exclusion, whose outputs go to the test's directory.
    void Make_Project(std::string_view Name) {
        Model_Reset();
        Excl E;
        E.AreaLon = 384;
        E.AreaLat = 128;
        E.Chk_Excl[5] = 1;
        Tab_Excl.Append(E);
        NameBgl = Dir.Path("Out.bgl");
        NameBglExcl = Dir.Path("Out Excl.bgl");
        Projet_Open = 1;
        ASSERT_TRUE(Save_Project(1, Dir.Path(Name)));
        Model_Reset();
    }
    std::vector<std::string> Generate(std::vector<std::string> Options) {
        std::vector<std::string> Words = {"generate",   Dir.Native("p.LWM").string(),
                                          "--app-path", Dir.Native("home").string(),
                                          "--language", "US"};
        Words.insert(Words.end(), Options.begin(), Options.end());
        return Words;
    }
};

TEST_F(Cli, HelpAndVersionNeedNothing) {
    const Outcome Help = Cli_On({"--help"});
    EXPECT_EQ(Help.Status, 0);
    EXPECT_NE(Help.Out.find("generate PROJECT"), std::string::npos);
    EXPECT_EQ(Cli_On({"--version"}).Out, "terrafold-cli 5.0\n");
    const Outcome Wrong = Cli_On({"generate"});
    EXPECT_EQ(Wrong.Status, 2);
    EXPECT_EQ(Wrong.Out, "");
    EXPECT_NE(Wrong.Err, "");
}

TEST_F(Cli, DryRunPrintsEventsInOrder) {
    Make_Project("p.LWM");
    Dir.Write("Out Excl.bgl", "old");
    Dir.Write("Out_3.bgl", "old");
    const Outcome First = Cli_On(Generate({"--dry-run"}));
    const std::string Home = Dir.Path("home") + "\\";
    const std::string Excl_Source = Home + "Terrafold$_Excl.ASM";
    const std::string Mask_Source = Home + "Terrafold$_Poly_LWM.asm";
    const std::string Excl_Run =
        "run " + Home + "bglc.exe \"" + Excl_Source + "\" \"" + Dir.Path("Out Excl.bgl") + "\"\n";
    EXPECT_EQ(First.Status, 0);
    EXPECT_EQ(First.Out, "delete " + Dir.Path("Out Excl.bgl") + "\ndelete " +
                             Dir.Path("Out_3.bgl") + "\nwrite " + Excl_Source + "\n" + Excl_Run +
                             "write " + Mask_Source + "\n")
        << "a mask without data is written and not compiled";
    EXPECT_EQ(First.Err, "");
    EXPECT_FALSE(Dir.Has("Out_3.bgl"));
    EXPECT_EQ(Cli_On(Generate({"--dry-run"})).Out,
              "delete " + Excl_Source + "\nwrite " + Excl_Source + "\n" + Excl_Run + "delete " +
                  Mask_Source + "\nwrite " + Mask_Source + "\n")
        << "the second run replaces the sources of the first";
}

TEST_F(Cli, MissingToolsAreMessages) {
    Make_Project("p.LWM");
    const Outcome O = Cli_On(Generate({}));
    EXPECT_EQ(O.Status, 1);
    EXPECT_NE(O.Out.find("\nmessage 0 Erreur g\xC3\xA9n\xC3\xA9rale"), std::string::npos) << O.Out;
    EXPECT_NE(O.Out.find("\nmessage 0 BGLC.exe not found\n"), std::string::npos) << O.Out;
}

TEST_F(Cli, MessagesOfTheCatalogueComeInTheLanguageAskedFor) {
    Dir.Write("p.LWM", "no project at all");
    const Outcome English = Cli_On(Generate({}));
    EXPECT_EQ(English.Status, 3);
    EXPECT_EQ(English.Out.rfind("message 30 (530) ", 0), 0U) << English.Out;
    EXPECT_EQ(English.Out.find("????"), std::string::npos) << "the new home has its catalogue";
    EXPECT_EQ(Cli_On(Generate({"--language", "FR"})).Out.rfind("message 30 (30) ", 0), 0U);
}

TEST_F(Cli, ResaveKeepsTheProject) {
    const std::string Example = std::string(TEST_SOURCE_DIR) + "/examples/island/Island.LWM";
    std::ifstream In(Example, std::ios::binary);
    const std::string Bytes{std::istreambuf_iterator<char>(In), {}};
    const Outcome O = Cli_On({"resave", Example, Dir.Native("copy.LWM").string()});
    EXPECT_EQ(O.Status, 0) << O.Out;
    EXPECT_EQ(O.Out, "");
    EXPECT_EQ(Body(Dir.Read("copy.LWM")), Body(Bytes));

    EXPECT_EQ(Cli_On({"resave", "no such.LWM", Dir.Native("x.LWM").string()}).Status, 3);
    EXPECT_FALSE(Dir.Has("x.LWM"));
    const std::string Copy = Dir.Native("copy.LWM").string();
    const Outcome Onto_Itself = Cli_On({"resave", Copy, Copy});
    EXPECT_EQ(Onto_Itself.Status, 1);
    EXPECT_EQ(Onto_Itself.Out.rfind("message 14 ", 0), 0U) << Onto_Itself.Out;
}

TEST_F(Cli, TextureToBitmap) {
    const Environment_Scope Home("TERRAFOLD_HOME", Dir.Native("home").string());
    const auto Run = [&](const std::string& In, std::vector<std::string> More = {}) {
        std::vector<std::string> Words = {"texture", Dir.Native(In).string(),
                                          Dir.Native("out.bmp").string()};
        Words.insert(Words.end(), More.begin(), More.end());
        return Cli_On(Words);
    };
    Dir.Write("t.bmp", Texture_Bytes({16, "DXT1", 74, 4, 4, "12345678"}));
    Dir.Write("t.r8", std::string(65'536, '\7'));
    Dir.Write("p.pal", std::string(768, '\5'));
    EXPECT_EQ(Run("t.bmp").Out, "Bmp 16 Bits 4x4 \xC3\xA9tendu DXT1\n");
    EXPECT_EQ(Run("t.r8", {"--palette", Dir.Native("p.pal").string()}).Out,
              "Texture type .R8 256x256\n");
    EXPECT_EQ(Dir.Read("out.bmp").substr(54, 3), "\5\5\5");
    const Outcome Grey = Run("t.r8");
    EXPECT_EQ(Grey.Status, 0);
    EXPECT_EQ(Grey.Err.rfind("message 0 ", 0), 0U) << Grey.Err;
    EXPECT_EQ(Dir.Read("out.bmp").substr(54, 3), "\7\7\7");
    for (const char* Wrong :
         {"short", "a compressed R8 of more than 54 bytes that has no end code"}) {
        Dir.Write("wrong", Wrong);
        const Outcome O = Run("wrong");
        EXPECT_EQ(O.Status, 1);
        EXPECT_EQ(O.Out, "");
        EXPECT_NE(O.Err.find("wrong\n"), std::string::npos) << O.Err;
    }
    EXPECT_EQ(Run("t.r8", {"--palette", Dir.Native("t.r8").string()}).Status, 2);
    EXPECT_EQ(Run("t.r8", {"--palette"}).Status, 2);
}

TEST_F(Cli, InfoIsJson) {
    Make_Project("p \xE9.LWM");
    const Outcome O = Cli_On({"info", Dir.Native("p \xC3\xA9.LWM").string()});
    EXPECT_EQ(O.Status, 0);
    EXPECT_EQ(O.Err, "");
    EXPECT_NE(O.Out.find("\"exclusions\": 1,"), std::string::npos) << O.Out;
    EXPECT_NE(O.Out.find("\"found\": null"), std::string::npos);
    EXPECT_NE(O.Out.find("\\\\p \xC3\xA9.LWM\""), std::string::npos) << "escaped, in UTF-8";
    EXPECT_EQ(O.Out.front(), '{');
    EXPECT_EQ(O.Out.substr(O.Out.size() - 2), "}\n");
}

}  // namespace
