// tests/play/test_scripts.cpp - every script of tests/scripts is played and must print what stands
// beside it; what it did is then undone and done again, with every state between.
//
// NAME.txt must print NAME.expected; NAME.2.txt is played after it, in the same home, as the next
// run of the program. Projects that they write as out_X.LWM are compared with NAME.out_X.LWM,
// but for their first two lines, which hold date and path. @DIR@ and @WDIR@ in scripts, projects
// and outputs are the test's directory in the system's form and in the program's. It holds the home
// App, small.LWM and other.LWM with their maps, and a copy of tests/scripts/data, whose reference
// files are among the home's. TERRAFOLD_ACCEPT
// set in the environment takes the output over; read the diff before you commit.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdlib>
#include <cstring>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <regex>
#include <vector>

#include "platform/files.h"
#include "platform/text1252.h"
#include "play/play.h"
#include "play/random_acts.h"
#include "play/undo_watch.h"
#include "support/bitmap_file.h"
#include "support/golden.h"
#include "support/program_test.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/surface.h"
#include "ui/edit/modes.h"
#include "ui/edit/route_tools.h"
#include "ui_support/small_project.h"

namespace {

namespace fs = std::filesystem;

const fs::path Folder = fs::path(TEST_SOURCE_DIR) / "tests" / "scripts";

std::string Bytes_Of(const fs::path& File) {
    std::ifstream In(File, std::ios::binary);
    return {std::istreambuf_iterator<char>(In), {}};
}

std::string Replaced(std::string Text, std::string_view Old, std::string_view New) {
    for (std::size_t At = 0; (At = Text.find(Old, At)) != std::string::npos; At += New.size())
        Text.replace(At, Old.size(), New);
    return Text;
}

std::vector<std::string> Script_Names() {
    std::vector<std::string> Names;
    for (const auto& Entry : fs::directory_iterator(Folder)) {
        const std::string Stem = Entry.path().stem().string();
        if (Entry.path().extension() == ".txt" && Stem.find('.') == std::string::npos)
            Names.push_back(Stem);
    }
    std::sort(Names.begin(), Names.end());
    return Names;
}

class Scripts : public Program_Test, public testing::WithParamInterface<std::string> {
protected:
    void Lay_Out() {
        for (const auto& Entry : fs::directory_iterator(fs::path(TEST_SOURCE_DIR) / "resource"))
            if (Entry.is_regular_file())
                fs::copy(Entry.path(), Dir.Native("App/Resource") / Entry.path().filename());
        Write_Small_Project(Dir, "small");
        Write_Small_Project(Dir, "other");
        fs::create_directory(Dir.Native("\xC3\xA9t\xC3\xA9"));
        Write_Maps();
        Dir.Write("App/Resource/Terrafold.Ini",
                  "[Terrafold]\r\nLanguage=US\r\nDerApt1=" + Dir.Path("gone.LWM") + "\r\n");
        for (const auto& Entry : fs::directory_iterator(Folder / "data"))
            Dir.Write(Place_Of(Entry.path().filename()), Filled(Bytes_Of(Entry.path())));
    }
    static std::string Place_Of(const fs::path& File) {
        return (File.extension() == ".Ref" ? "App/Resource/" : "") + File.string();
    }
    // Pictures of textures, and maps that can serve and that cannot.
    void Write_Maps() {
        Dir.Write("tex/a.bmp", Bitmap_Bytes({.Width = 40, .Height = 30}));
        Dir.Write("tex/b.bmp", Bitmap_Bytes({.Width = 8, .Height = 4, .Bits = 8}));
        Dir.Write("tex/c.txt", "no picture");
        Dir.Write("maps/two.bmp", Bitmap_Bytes({.Width = 2, .Height = 2, .Bits = 8}));
        Dir.Write("maps/tile.bmp", Bitmap_Bytes({.Width = 2000, .Height = 2, .Bits = 8}));
        Dir.Write("maps/wide.bmp", Bitmap_Bytes({.Width = 2001, .Height = 3}));
        Dir.Write("maps/flat.bmp", Bitmap_Bytes({.Width = 9, .Height = 1}));
        Dir.Write("maps/fine.bmp", Bitmap_Bytes({.Width = 9, .Height = 9, .Bits = 16}));
        Dir.Write("maps/cut.bmp", Bitmap_Bytes({.Width = 9, .Height = 9}).substr(0, 200));
        if (GetParam() != "new_tiles") return;  // one tile, and a pixel more each way
        for (const int Side : {2000, 2001})
            Dir.Write("maps/" + std::to_string(Side) + ".bmp",
                      Bitmap_Bytes({.Width = Side, .Height = Side, .Bits = 8}));
    }
    std::string Filled(std::string Text) const {
        return Replaced(Replaced(std::move(Text), "@WDIR@", Dir.Path()), "@DIR@",
                        Dir.Native().generic_string());
    }
    // Paths below the test's directory in the program's form, whichever they were told in.
    static std::string In_One_Form(std::string Text) {
        for (std::size_t At = 0; (At = Text.find("@WDIR@/", At)) != std::string::npos;)
            for (At += 6; At < Text.size() && !std::strchr(" \"\n", Text[At]); ++At)
                if (Text[At] == '/') Text[At] = '\\';
        return Text;
    }
    // What a script prints, and last how it ended if it did not go well.
    std::string Output_Of(const fs::path& File) {
        std::string Out;
        Undo_Watch Watch(Dir.Path("App\\state.LWM"));
        const Play_Options Options{.App_Dir = App_Dir_,
                                   .At_Start = [&] { Watch.Begin(); },
                                   .At_End = [&] { Watch.Go_There_And_Back(); }};
        const Play_End End = Play(Script_Read(Filled(Bytes_Of(File))), Options,
                                  [&](std::string_view Line) { Out += std::string(Line) + "\n"; });
        if (End.Status != 0)
            Out += "exit " + std::to_string(End.Status) + " line " + std::to_string(End.Line) +
                   ": " + End.Reason + "\n";
        for (const std::string& Here : {Dir.Path(), Dir.Native().generic_string()})
            Out = Replaced(Replaced(std::move(Out), Here, "@WDIR@"), Upper_1252(Here), "@WDIR@");
        Out = std::regex_replace(Out, std::regex(R"(\d{4}-\d\d-\d\d \d\d:\d\d:\d\d)"), "@TIME@");
        Out = std::regex_replace(Out, std::regex(R"(\d+\.\d s\b)"), "@SECONDS@");
        return To_Utf8(In_One_Form(std::move(Out)));
    }
    void Play_And_Compare(const std::string& Name) {
        EXPECT_TRUE(
            Equals_File(Folder / (Name + ".expected"), Output_Of(Folder / (Name + ".txt"))));
    }
    // The projects that were written, in the form that scripts have them in.
    void Compare_Projects(const std::string& Name) {
        for (const auto& Entry : fs::directory_iterator(Dir.Native())) {
            const std::string File = Entry.path().filename().string();
            if (!File.starts_with("out_")) continue;
            const std::string Text = Replaced(Dir.Read(File), Dir.Path(), "@WDIR@");
            EXPECT_TRUE(
                Equals_File(Folder / (Name + "." + File), Text.substr(Text.find("\r\n0010") + 2)));
        }
    }

    const std::string App_Dir_ = App_Path;
};

TEST_P(Scripts, PrintWhatStandsBesideThem) {
    Lay_Out();
    Play_And_Compare(GetParam());
    if (fs::exists(Folder / (GetParam() + ".2.txt"))) Play_And_Compare(GetParam() + ".2");
    EXPECT_TRUE(Files_Matching(Dir.Path("App") + "\\Temp\\$$$_", "*").empty()) << "tiles are left";
    Compare_Projects(GetParam());
}

// What is selected, which tool is at work on it, and the lines that show it agree.
void Expect_Whole_Selection() {
    EXPECT_LE(Pending_New + Pending_Select + Tool_Insert + Tool_Extend + Tool_Sel_Point, 1);
    const bool Point_Tool = Tool_Insert + Tool_Extend + Tool_Sel_Point != 0;
    const bool Used = Point_Tool && Tool_Armed == 0;
    EXPECT_TRUE(Last_Obj_Set == 0 || (First_Obj <= Last_Obj && Last_Obj <= Nb_Obj));
    if (Obj_Selected == 0) {
        EXPECT_TRUE(Sel_Obj == 0 && Pt_Selected == 0 && Sel_Pt == 0 && !Point_Tool);
    } else {
        ASSERT_TRUE(First_Obj <= Sel_Obj && Sel_Obj <= Nb_Obj);
        const auto Is_In = [](Long Wanted) {
            Long P = Tab_Obj[Sel_Obj].First_Pt;
            while (P != 0 && P != Wanted) P = Tab_Pt[P].Next;
            return P != 0;
        };
        EXPECT_EQ(Pt_Selected != 0, Is_In(Sel_Pt));
        EXPECT_TRUE(!Used || Pt_Selected != 0);
        if (Used && Tool_Insert != 0) {
            EXPECT_TRUE(Tab_Pt[Sel_Pt].Next == Sel_Pt2 || Insert_Closing != 0);
            EXPECT_TRUE(Is_In(Sel_Pt2));
        }
    }
    const bool Grabbed = Used && Tool_Sel_Point != 0 && Pt_Fresh == 0;
    const Overlay_Items& Over = The_Overlay;
    EXPECT_EQ(Over.Cercle.Visible, Used && Tool_Insert == 0 && !Grabbed);
    EXPECT_TRUE(!Over.Ln1.Visible || (Used && (Tool_Sel_Point == 0 || Grabbed)));
    EXPECT_TRUE(!Over.Ln2.Visible || (Over.Ln1.Visible && Tool_Extend == 0));
}

class Random_Play : public Scripts {};

// Whatever a user does in all modes and dialogs: the selection stays whole, and each state comes
// back.
TEST_P(Random_Play, EveryStateComesBack) {
    const char* Asked = std::getenv("TERRAFOLD_ROUNDS");
    const long Acts = Asked != nullptr ? std::atol(Asked) : 5000;
    Lay_Out();
    const bool Routes_Only = GetParam().ends_with("routes");
    Random_Acts Next(static_cast<unsigned>(std::stoi(GetParam())), Acts, Routes_Only);
    Undo_Watch Watch(Dir.Path("App\\state.LWM"));
    long Nb = 0;
    const std::string Text = "file \"" + Dir.Path("small.LWM") + "\"\nclick Mnu_File_Open\n" +
                             (Routes_Only ? "click Cmd_Saisie_Routes\n" : "") +
                             Next.Answers(Acts, {"cancel", Dir.Path("tex/a.bmp")});
    const Play_End End = Play(Script_Read(Text),
                              {.App_Dir = App_Dir_,
                               .At_Start = [&] { Watch.Begin(); },
                               .Next_Act =
                                   [&](const Form& F) {
                                       if (++Nb % 100 == 0) Points_Tidy(0), Watch.Note();
                                       if (Mode_Route != 0) Expect_Whole_Selection();
                                       return Next(F);
                                   },
                               .At_End = [&] { Watch.Go_There_And_Back(); }},
                              [](std::string_view) {});
    EXPECT_GT(Watch.Nb_States(), 20U) << End.Reason;
}

INSTANTIATE_TEST_SUITE_P(Seeds, Random_Play,
                         testing::Values("1", "2", "3", "1 routes", "2 routes"));

INSTANTIATE_TEST_SUITE_P(All, Scripts, testing::ValuesIn(Script_Names()),
                         [](const auto& Info) { return Info.param; });

}  // namespace
