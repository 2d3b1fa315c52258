// tests/play/test_play.cpp - scripts that make no sense, and acts that no user could do.
#include "platform/paths.h"
#include "play/play.h"

#include <gtest/gtest.h>

#include <random>

#include "platform/text1252.h"
#include "support/program_test.h"
#include "ui_support/small_project.h"

namespace {

class Play_Test : public Program_Test {
protected:
    // What is printed, the lines parted by "|", and last how it ended if it did not go well.
    std::string Played(std::string_view Text, Long Width = 801, Long Height = 601) {
        std::string Out;
        const Play_End End =
            Play(Script_Read(Text),
                 {.App_Dir = Home, .Language = "US", .Width = Width, .Height = Height},
                 [&](std::string_view Line) { Out += std::string(Line) + "|"; });
        return End.Status == 0 ? Out
                               : Out + std::to_string(End.Status) + " line " +
                                     std::to_string(End.Line) + ": " + End.Reason;
    }
    std::string Open_Small() {
        Write_Small_Project(Dir, "small");
        return "file \"" + Dir.Path("small.LWM") + "\"\nclick Mnu_File_Open\n";
    }

    const std::string Home = App_Path;
};

}  // namespace

TEST_F(Play_Test, ScriptsThatMakeNoSenseAreNotBegun) {
    const char* Wrong[] = {"clack Cmd_New",
                           "click",
                           "click A B",
                           "choose A",
                           "choose A 1.5",
                           "type A",
                           "dblclick A b",
                           "key Hyper",
                           "key Ctrl+",
                           "close now",
                           "tick 0",
                           "tick -1",
                           "move 1",
                           "move 1 x",
                           "press 1 2 up",
                           "press 1 2 left right",
                           "release 1 2 shift",
                           "wheel 1 2",
                           "wheel 1 2 .5",
                           "answer maybe",
                           "aircraft 1",
                           "aircraft error",
                           "show",
                           "state all",
                           "say \"open",
                           "say \"a\"b",
                           "say \xC3",
                           "say \xE4\xB8\xAD",
                           "say \x01",
                           "move 1e9 1",
                           "move nan 1",
                           "move inf 1"};
    for (const char* Line : Wrong) {
        const std::string Out = Played("say begun\n# \xFF\n\n" + std::string(Line) + "\n");
        EXPECT_EQ(Out.substr(0, 10), "2 line 4: ") << Line << " gave " << Out;
    }
}

TEST_F(Play_Test, WordsOfALine) {
    EXPECT_EQ(
        Played("\xEF\xBB\xBFsay \"a  \"\"b\"\"\"\r\n \tsay\t\xC3\xA9t\xC3\xA9 x \r\n  # no\r\nsay"),
        "a  \"b\"|\xE9t\xE9 x||");
}

TEST_F(Play_Test, ActsThatNoUserCouldDo) {
    const std::pair<const char*, const char*> Rows[] = {
        {"click Cmd_Gone", "4 line 1: there is no Cmd_Gone of Frm"},
        {"say a\nclick Cmd_Save\nsay b", "a|4 line 2: Cmd_Save of Frm is disabled"},
        {"click LTex2500", "4 line 1: LTex2500 of Frm is hidden"},
        {"click Pic", "4 line 1: Pic is nothing to click"},
        {"choose Cmd_New 0", "4 line 1: Cmd_New has no 0 to choose"},
        {"type Cmd_New a", "4 line 1: Cmd_New is nothing to type into"},
        {"focus LLat", "4 line 1: LLat is nothing to go into"},
        {"show Cmd_Gone", "4 line 1: there is no Cmd_Gone of Frm"},
        {"write a.LWM", "4 line 1: no project is open"},
        {"click Mnu_File_Open", "4 line 1: a question for a file has no answer: Loading a file"},
        {"file a.LWM\nanswer no", "4 line 1: nothing asked for the answer a.LWM"},
        {"close\nstate\nclick Cmd_New",
         "mode none|view 1 0 0|object 0|point 0|tool none|texture 0|polygon 0|pointer normal|"
         "4 line 3: the program has ended"},
        {"click Mnu_Param_Gene\nclick Mnu_File_Quit",
         "form Frm_PGen|4 line 2: there is no Mnu_File_Quit of Frm_PGen"},
        {"click Mnu_Param_Gene\nchoose Opt_Lang 2",
         "form Frm_PGen|4 line 2: Opt_Lang has no 2 to choose"},
        {"click Mnu_Param_Gene\nmove 1 1", "form Frm_PGen|4 line 2: there is no canvas in front"},
        {"click Mnu_Param_Gene\ndrop a.LWM",
         "form Frm_PGen|4 line 2: a dialog lies above the main form"},
        {"click Mnu_Param_Gene\ndblclick DirFS\nchoose Dir1 0",
         "form Frm_PGen|form Frm_Dir|end Frm_Dir closed|end Frm_PGen closed|"},
    };
    for (const auto& [Script, Wanted] : Rows) EXPECT_EQ(Played(Script), Wanted) << Script;
}

TEST_F(Play_Test, Questions) {
    const std::string Open = Open_Small();
    const std::string Asked =
        "message 0 Do you want to save " + Upper_1252(Shown_Path(Dir.Path("small.LWM"))) + " ?|";
    EXPECT_EQ(Played(Open + "click Mnu_File_Close").substr(0, Asked.size() + 30),
              Asked + "4 line 3: a question has no an");
    EXPECT_EQ(Played(Open + "answer ok\nclick Mnu_File_Close").substr(0, Asked.size() + 41),
              Asked + "4 line 4: the question does not offer the");
    EXPECT_EQ(Played(Open + "answer no\nclick Mnu_File_Close\nshow Cmd_Save"),
              Asked + "show Cmd_Save text=\"\" value=0 enabled=0 visible=1|");
}

TEST_F(Play_Test, AFieldThatRefusesKeepsTheFocus) {
    EXPECT_EQ(
        Played("click Mnu_Param_Gene\ntype DirFS \"no such\"\nchoose Opt_Lang 0\n"
               "show Opt_Lang DirFS\nkey Esc\nkey Tab\nkey Enter\nclick Mnu_File_Quit"),
        "form Frm_PGen|message 1 (501) ???? FS9 Directory: \"no such\"; allowed: the path of a "
        "directory that is there|"
        "show Opt_Lang text=\"\" value=1 enabled=1 visible=1|"
        "show DirFS text=\"no such\" value=0 enabled=1 visible=1|end Frm_PGen ok|");
}

TEST_F(Play_Test, TheCanvasHasTheSizeAsked) {
    const std::string Out = Played(Open_Small() + "state", 402, 301);
    EXPECT_NE(Out.find("view 1 -.5 49.5|"), std::string::npos) << Out;
}

// Acts in any order, and any bytes, end somehow.
TEST_F(Play_Test, NothingCrashesIt) {
    const std::string Open = Open_Small();
    const std::string_view Acts[] = {"click Mnu_Param_Gene",
                                     "click Cmd_ColourGrid",
                                     "choose Opt_ColourGrid 3",
                                     "close",
                                     "click Cmd_Ok",
                                     "click Cmd_Cancel",
                                     "key Esc",
                                     "key Enter",
                                     "key Tab",
                                     "key Alt+R",
                                     "key Alt+N",
                                     "dblclick DirFS",
                                     "dblclick Dir1 0",
                                     "click Cmd_TrtCell",
                                     "click Cmd_Saisie_Routes",
                                     "click Cmd_New_Route",
                                     "press 100 100",
                                     "press 120 90 right",
                                     "release 1 1",
                                     "move 200 150",
                                     "dblclick 150 150",
                                     "wheel 5 5 -2",
                                     "click Cmd_FSUIPC",
                                     "tick 3",
                                     "aircraft 45 6",
                                     "click Mnu_Reinit",
                                     "answer yes",
                                     "answer no",
                                     "state",
                                     "key Delete",
                                     "choose HScroll 1000",
                                     "click Cmd_TrtMesh",
                                     "click Cmd_TrtIma",
                                     "click Mnu_File_Quit"};
    std::mt19937 Source(7);
    for (int I = 0; I < 60; ++I) {
        std::string Text = Open;
        for (int N = 0; N < 12; ++N) Text += std::string(Acts[Source() % std::size(Acts)]) + "\n";
        if (I % 4 == 0) Text[Source() % Text.size()] = static_cast<char>(Source());
        const std::string Out = Played(Text);
        const std::size_t At = Out.find_last_of('|');
        EXPECT_TRUE(At + 1 == Out.size() || Out.find(" line ", At + 1) != std::string::npos)
            << Text;
    }
}
