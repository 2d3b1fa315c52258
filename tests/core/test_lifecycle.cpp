// tests/core/test_lifecycle.cpp - the commands that open, save, close and empty a project.
#include "core/lifecycle.h"

#include <functional>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/settings.h"
#include "core/view_calls.h"
#include "platform/text1252.h"
#include "support/program_test.h"

class Lifecycle : public Program_Test {
protected:
    Lifecycle() {
        const auto Note = [this](std::string Name) {
            return [this, Name] { Calls += Name + " "; };
        };
        The_View.Tiles_Remove = Note("Tiles_Remove");
        The_View.Tiles_Show = Note("Tiles_Show");
        The_View.Mode_Leave = Note("Mode_Leave");
        The_View.Mode_Area_On = Note("Mode_Area_On");
        The_View.View_Clear = Note("View_Clear");
        The_View.View_Reset = Note("View_Reset");
        The_View.View_Redraw = Note("View_Redraw");
        The_View.Route_Reset = Note("Route_Reset");
        The_View.Ima_Unload = Note("Ima_Unload");
    }

    // A project file with one object, and no project open.
    std::string Make_Project(const std::string& Name) {
        Model_Reset();
        Nom_Projet = Dir.Path(Name);
        Carte = "C:\\maps\\" + Name + ".bmp";
        Obj_Add({}, 10.0, 20.0);
        Projet_Open = 1;
        EXPECT_TRUE(Save_Project(0, {})) << Name;
        Projet_Open = 0;
        Model_Reset();
        return Dir.Path(Name);
    }
    // The same, opened, with nothing recorded of that.
    std::string Make_Open(const std::string& Name) {
        std::string Path = Make_Project(Name);
        Open_Project(Path);
        EXPECT_EQ(Projet_Open, 1) << Name;
        Host_Of_Test.Events.clear();
        Host_Of_Test.Boxes.clear();
        Calls.clear();
        return Path;
    }
    void Expect_Empty_State() {
        EXPECT_EQ(Projet_Open, 0);
        EXPECT_EQ(Edit_On, 0);
        for (const char* Control : {"Mnu_File_Close", "Cmd_Save", "Cmd_API", "Mnu_Reinit"})
            EXPECT_FALSE(Host_Of_Test.Enabled[Control]) << Control;
    }
    std::string Title() { return Host_Of_Test.Caption["Frm"]; }
    static std::string Title_Of(const std::string& Path) {
        return "Terrafold V5.0 04/10/2003  " + Path;
    }

    std::string Calls;  // what the view was asked for, in order
};

TEST_F(Lifecycle, OpeningShowsTheProject) {
    const std::string Path = Make_Project("one.LWM");
    Nom_Projet = Dir.Path("older.LWM");
    Host_Of_Test.File_Answers = {Path};
    Mnu_File_Open();
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Edit_On, 1);
    EXPECT_EQ(Nom_Projet, Path);
    EXPECT_EQ(Nb_Obj, 2);
    EXPECT_EQ(Title(), Title_Of(Path));
    EXPECT_EQ(DerApt[0], Path);
    EXPECT_EQ(Calls, "View_Reset Route_Reset Mode_Area_On View_Redraw ");
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    EXPECT_TRUE(Host_Of_Test.Enabled["Cmd_API"]);
    const File_Question& Q = Host_Of_Test.Questions.at(0);
    EXPECT_EQ(Q.Mode, File_Question::Kind::Open);
    EXPECT_EQ(Q.Title, "Chargement d'un Projet");
    EXPECT_EQ(Q.Start_Dir, Dir.Path() + "\\");
    EXPECT_EQ(Q.File_Name, "");
    EXPECT_EQ(Q.Filter, "Terrafold (*.LWM)|*.LWM");
}

TEST_F(Lifecycle, ARefusedNameBringsTheFileDialogBack) {
    const std::string Path = Make_Project("one.LWM");
    Host_Of_Test.File_Answers = {Dir.Path("a.b.LWM"), Path};
    Language = "US";
    Mnu_File_Open();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 1);
    EXPECT_EQ(Host_Of_Test.Questions.size(), 2U);
    EXPECT_EQ(Host_Of_Test.Questions.at(1).Title, "Loading a file");
    EXPECT_EQ(Nom_Projet, Path);
    Host_Of_Test.File_Answers = {Dir.Path("copy.jpeg"), std::nullopt};
    Mnu_File_Enreg_Sous();
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U);
    EXPECT_EQ(Host_Of_Test.Questions.size(), 4U);
    EXPECT_FALSE(Dir.Has("copy.jpeg"));
}

TEST_F(Lifecycle, AFileThatCannotBeReadLeavesNoProject) {
    const std::string Whole = Make_Open("one.LWM");
    const std::string Bytes = Dir.Read("one.LWM");
    Dir.Write("damaged.LWM", Bytes.substr(0, Bytes.size() / 2));
    Dir.Write("text.LWM", "not a project\r\n");
    for (const char* Name : {"damaged.LWM", "text.LWM", "missing.LWM"}) {
        Open_Project(Whole);
        Host_Of_Test.Box_Answers = {Button_No};
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.File_Answers = {Dir.Path(Name)};
        Mnu_File_Open();
        Expect_Empty_State();
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U) << Name << ": the question and one message";
        EXPECT_EQ(Title(), "Terrafold V5.0 04/10/2003");
        EXPECT_EQ(DerApt[0], Whole) << "not in the recent list";
        EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    }
}

TEST_F(Lifecycle, AMapThatIsRefusedStopsTheOpening) {
    const std::string Path = Make_Project("one.LWM");
    The_View.Tiles_Build = [] { return false; };
    Host_Of_Test.File_Answers = {Path};
    Mnu_File_Open();
    EXPECT_EQ(Projet_Open, 0) << "without its map a project can't be worked on";
    EXPECT_EQ(Edit_On, 0);
    EXPECT_EQ(Nb_Obj, 1) << "nothing of it is left";
    EXPECT_EQ(DerApt[0], "");
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
}

TEST_F(Lifecycle, CancelInTheQuestionKeepsEverything) {
    const std::string Path = Make_Open("one.LWM");
    const std::string On_Disk = Dir.Read("one.LWM");
    const std::function<void()> Commands[] = {Cmd_New, Mnu_File_Open, [] { Mnu_File_Prec(0); },
                                              Mnu_File_Close,
                                              [] { EXPECT_FALSE(Mnu_File_Quit()); }};
    for (std::size_t I = 0; I < std::size(Commands); ++I) {
        Host_Of_Test.Events.clear();
        Host_Of_Test.Box_Answers = {Button_Cancel};
        Commands[I]();
        EXPECT_EQ(Host_Of_Test.Events.size(), 1U) << I << ": the question and nothing else";
        EXPECT_EQ(Calls, "") << I;
        EXPECT_EQ(Projet_Open, 1) << I;
        EXPECT_EQ(Edit_On, 1) << I;
        EXPECT_EQ(Nb_Obj, 2) << I;
        EXPECT_EQ(Nom_Projet, Path) << I;
        EXPECT_EQ(Title(), Title_Of(Path)) << I;
        EXPECT_TRUE(Host_Of_Test.Enabled["Cmd_Save"]) << I;
        EXPECT_EQ(Dir.Read("one.LWM"), On_Disk) << I;
    }
}

TEST_F(Lifecycle, TheQuestionNamesTheProjectInCapitals) {
    Make_Open("\xE9t\xE9.LWM");
    EXPECT_FALSE(Ask_Save()) << "no answer is Cancel";
    const std::string Name = Upper_1252(Dir.Path()) + "\\\xC9T\xC9.LWM ?";
    const Box French = Host_Of_Test.Boxes.back();
    EXPECT_EQ(French.Text,
              "Voulez-vous enregistrer les modifications apport\xE9"
              "es \xE0 " +
                  Name);
    EXPECT_EQ(French.Style % 16, Box_Yes_No_Cancel);
    EXPECT_EQ(French.Title, "Terrafold");
    EXPECT_EQ(French.Num, 0);
    Language = "US";
    Ask_Save();
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "Do you want to save " + Name);
    Host_Of_Test.Boxes.clear();
    Projet_Open = 0;
    EXPECT_TRUE(Ask_Save());
    EXPECT_TRUE(Host_Of_Test.Boxes.empty()) << "nothing to ask without a project";
}

TEST_F(Lifecycle, YesSavesAndNoDoesNot) {
    const std::string Path = Make_Open("one.LWM");
    NameBgl = "C:\\first.bgl";
    Host_Of_Test.Box_Answers = {Button_Yes};
    Mnu_File_Close();
    Expect_Empty_State();
    EXPECT_NE(Dir.Read("one.LWM").find("C:\\first.bgl"), std::string::npos);
    Open_Project(Path);
    NameBgl = "C:\\second.bgl";
    Host_Of_Test.Box_Answers = {Button_No};
    Mnu_File_Close();
    Expect_Empty_State();
    EXPECT_EQ(Dir.Read("one.LWM").find("C:\\second.bgl"), std::string::npos);
}

TEST_F(Lifecycle, WorkIsNotLostWhenTheSaveFails) {
    Make_Open("one.LWM");
    Nom_Projet = Dir.Path("no such dir") + "\\one.LWM";
    for (const auto& Command :
         {+[] { Cmd_New(); }, +[] { Mnu_File_Close(); }, +[] { Mnu_File_Quit(); }}) {
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.Box_Answers = {Button_Yes};
        Command();
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 2U) << "the question, and why it failed";
        EXPECT_EQ(Projet_Open, 1);
        EXPECT_EQ(Nb_Obj, 2);
    }
}

TEST_F(Lifecycle, ClosingClearsTheScreen) {
    Make_Open("one.LWM");
    The_View.Mode_Leave = [this] {
        Calls += "Mode_Leave ";
        EXPECT_EQ(Projet_Open, 1) << "the mode is left while there is a project to check";
    };
    for (const char* Label : {"L_MouseBmp", "LLat", "LLon", "LLatDec", "LLonDec", "L_NumCell_Area"})
        Host_Of_Test.Set_Caption(Label, "12");
    Host_Of_Test.Box_Answers = {Button_No};
    Mnu_File_Close();
    Expect_Empty_State();
    EXPECT_EQ(Calls, "Tiles_Remove Mode_Leave View_Clear ");
    EXPECT_EQ(Title(), "Terrafold V5.0 04/10/2003");
    for (const auto& [Control, Text] : Host_Of_Test.Caption) EXPECT_NE(Text, "12") << Control;
}

TEST_F(Lifecycle, ARecentProjectOpens) {
    Make_Project("one.LWM");
    const std::string Two = Make_Project("two.LWM");
    Recent_Update(Two, 1);
    Recent_Update(Dir.Path("one.LWM"), 1);
    Mnu_File_Prec(1);
    EXPECT_EQ(Nom_Projet, Two);
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(DerApt[0], Two);
    EXPECT_EQ(DerApt[1], Dir.Path("one.LWM"));
}

TEST_F(Lifecycle, ARecentProjectThatIsGone) {
    Recent_Update(Dir.Path("kept.LWM"), 1);
    Recent_Update(Dir.Path("gone.LWM"), 1);
    Make_Open("open.LWM");
    Host_Of_Test.Box_Answers = {Button_No};
    Mnu_File_Prec(1);
    EXPECT_EQ(Host_Of_Test.Last_Message(), 33);
    Expect_Empty_State();
    EXPECT_EQ(DerApt[1], Dir.Path("kept.LWM")) << "the entries below move up";
    EXPECT_EQ(DerApt[2], "");
    const auto Before = DerApt;
    Mnu_File_Prec(3);
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 3U);
    EXPECT_EQ(Host_Of_Test.Last_Message(), 33) << "a free entry";
    EXPECT_EQ(DerApt, Before);
}

TEST_F(Lifecycle, ANewProjectIsOpenAndNotYetSaved) {
    Make_Open("one.LWM");
    Host_Of_Test.Box_Answers = {Button_No};
    Host_Of_Test.Forms["Frm_PPro"] = [this] {
        EXPECT_EQ(New_Projet, 1);
        EXPECT_EQ(Projet_Open, 0);
        Nom_Projet = Dir.Path("new.LWM");
        Carte = "C:\\new.bmp";
        PPro_Ok = 1;
        return Form_End::Ok;
    };
    Calls.clear();
    Cmd_New();
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Edit_On, 1);
    EXPECT_EQ(New_Projet, 0);
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Carte, "C:\\new.bmp") << "what the dialog set stays";
    EXPECT_EQ(Title(), Title_Of(Dir.Path("new.LWM")));
    EXPECT_EQ(DerApt[0], Dir.Path("new.LWM"));
    EXPECT_TRUE(Host_Of_Test.Enabled["Cmd_Save"]);
    EXPECT_FALSE(Dir.Has("new.LWM"));
    EXPECT_EQ(Calls,
              "Tiles_Remove Mode_Leave View_Clear View_Reset View_Reset Tiles_Show Route_Reset "
              "Mode_Area_On View_Redraw ");
}

TEST_F(Lifecycle, NoNewProjectOverAnOldOneNorAfterCancel) {
    const std::string Path = Make_Open("one.LWM");
    const std::string On_Disk = Dir.Read("one.LWM");
    Host_Of_Test.Box_Answers = {Button_No};
    Host_Of_Test.Forms["Frm_PPro"] = [Path] {
        Nom_Projet = Path;
        PPro_Ok = 1;
        return Form_End::Ok;
    };
    Cmd_New();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 32);
    Expect_Empty_State();
    Host_Of_Test.Forms["Frm_PPro"] = [] { return Form_End::Closed; };
    Cmd_New();
    Expect_Empty_State();
    EXPECT_EQ(Dir.Read("one.LWM"), On_Disk);
}

TEST_F(Lifecycle, SaveAsWritesACopyAndKeepsTheProject) {
    const std::string Path = Make_Open("one.LWM");
    Host_Of_Test.File_Answers = {Dir.Path("copy.LWM")};
    Mnu_File_Enreg_Sous();
    const File_Question& Q = Host_Of_Test.Questions.back();
    EXPECT_EQ(Q.Mode, File_Question::Kind::Save);
    EXPECT_EQ(Q.Title, "Projet : Enregistrer sous ...");
    EXPECT_EQ(Q.Start_Dir, Dir.Path() + "\\");
    EXPECT_EQ(Q.File_Name, "one.LWM");
    EXPECT_TRUE(Dir.Has("copy.LWM"));
    EXPECT_EQ(Nom_Projet, Path);
    EXPECT_EQ(Title(), Title_Of(Path));
    EXPECT_EQ(DerApt[0], Dir.Path("copy.LWM"));
    EXPECT_EQ(DerApt[1], Path);
}

TEST_F(Lifecycle, ASaveAsThatFailsStaysOutOfTheRecentList) {
    const std::string Path = Make_Open("one.LWM");
    Host_Of_Test.File_Answers = {Dir.Path("no such dir") + "\\copy.LWM", Path, std::nullopt};
    Mnu_File_Enreg_Sous();
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    Mnu_File_Enreg_Sous();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 14);
    Mnu_File_Enreg_Sous();
    EXPECT_EQ(DerApt, (std::array<std::string, 4>{Path}));
}

TEST_F(Lifecycle, SavingWritesWhatIsThere) {
    Make_Open("one.LWM");
    for (const auto& Command : {Cmd_Save, Mnu_File_Enreg}) {
        NameBgl += "x.bgl";
        Command();
        EXPECT_NE(Dir.Read("one.LWM").find('"' + NameBgl + '"'), std::string::npos);
    }
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Lifecycle, InitializingEmptiesTheProjectAndKeepsItsMap) {
    const std::string Path = Make_Open("one.LWM");
    Language = "US";
    Mnu_Reinit();
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text,
              "Do you want to really initialize " + Upper_1252(Path) + " ?");
    EXPECT_EQ(Host_Of_Test.Boxes.back().Style % 16, Box_Yes_No);
    EXPECT_EQ(Nb_Obj, 2) << "No is the answer";
    EXPECT_EQ(Calls, "");
    Host_Of_Test.Box_Answers = {Button_Yes};
    Mnu_Reinit();
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Carte, "C:\\maps\\one.LWM.bmp");
    EXPECT_EQ(Nom_Projet, Path);
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Title(), Title_Of(Path));
    EXPECT_EQ(Calls, "Mode_Leave View_Reset Route_Reset Mode_Area_On View_Redraw ");
    Calls.clear();
    Ima_Add({});
    Host_Of_Test.Box_Answers = {Button_Yes};
    Mnu_Reinit();
    EXPECT_EQ(Calls, "Mode_Leave Ima_Unload View_Reset Route_Reset Mode_Area_On View_Redraw ");
    EXPECT_EQ(Nb_Ima, 0);
    Projet_Open = 0;
    Host_Of_Test.Boxes.clear();
    Mnu_Reinit();
    EXPECT_TRUE(Host_Of_Test.Boxes.empty()) << "only with a project open";
}

TEST_F(Lifecycle, QuittingReleasesEverything) {
    Make_Open("one.LWM");
    Host_Of_Test.Box_Answers = {Button_No};
    EXPECT_TRUE(Mnu_File_Quit());
    EXPECT_EQ(Projet_Open, 0);
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Nom_Projet, "");
    EXPECT_NE(Calls.find("Tiles_Remove"), std::string::npos);
    EXPECT_TRUE(Mnu_File_Quit()) << "without a project there is no question";
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
}

TEST_F(Lifecycle, DialogsOfTheMenus) {
    New_Projet = 1;
    Cad_Cancelled = 0;
    Host_Of_Test.Forms["Frm_PPro"] = [] {
        EXPECT_EQ(New_Projet, 0);
        return Form_End::Closed;
    };
    Host_Of_Test.Forms["Frm_ModCad"] = [] {
        EXPECT_EQ(Cad_Cancelled, 1);
        return Form_End::Closed;
    };
    Mnu_Param_File();
    Mnu_Param_Gene();
    Mnu_Tool_CvLL();
    EXPECT_EQ(Calls, "");
    Mnu_ModCad();
    Mnu_par_Remesh();
    EXPECT_EQ(Calls, "View_Redraw View_Redraw ");
    EXPECT_EQ(Host_Of_Test.Events,
              (std::vector<std::string>{"form Frm_PPro", "form Frm_PGen", "form Frm_CvLL1",
                                        "form Frm_ModCad", "form Frm_Mesh"}));
}

TEST_F(Lifecycle, ProjectControlsFollowTheProject) {
    Disable_Project_Cmds();
    const auto Off = Host_Of_Test.Enabled;
    EXPECT_EQ(Off.size(), 36U);
    for (const auto& [Control, On] : Off) EXPECT_FALSE(On) << Control;
    for (const char* Control : {"Cmd_New", "Cmd_Help", "Mnu_File_New", "Mnu_File_Open",
                                "Mnu_File_Quit", "Mnu_Param_Gene", "Mnu_Tool_CvLL"})
        EXPECT_FALSE(Off.contains(Control)) << Control;
    Enable_Project_Cmds();
    EXPECT_EQ(Host_Of_Test.Enabled.size(), Off.size()) << "nothing that closing would leave on";
    std::string Still_Off;
    for (const auto& [Control, On] : Host_Of_Test.Enabled)
        if (!On) Still_Off += Control + " ";
    EXPECT_EQ(Still_Off,
              "Cmd_AffTexture Cmd_Extr_Pt_Route Cmd_Ins_Pt_Route Cmd_New_Ima Cmd_New_Route "
              "Cmd_Sel_Crb_Ima Cmd_Sel_Ima Cmd_Sel_Pt_Route Cmd_Sel_Route Cmd_Sup_Route_Ou_Pt "
              "Cmd_Tabul Cmd_TrtArea ");
    EXPECT_FALSE(Host_Of_Test.Visible.at("LPtGrid"));
}
