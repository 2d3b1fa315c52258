// tests/core/test_lifecycle.cpp - commands that open, save, close and empty a project lose no work.
#include "core/lifecycle.h"

#include <functional>

#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/settings.h"
#include "core/view_calls.h"
#include "support/program_test.h"

class Lifecycle : public Program_Test {
protected:
    // A project file with one object, and no project open.
    std::string Make_Project(const std::string& Name) {
        Model_Reset();
        Nom_Projet = Dir.Path(Name);
        Carte = "C:\\maps\\isle.bmp";
        Obj_Add({}, 10.0, 20.0);
        Projet_Open = 1;
        EXPECT_TRUE(Save_Project(0, {})) << Name;
        Projet_Open = 0;
        Model_Reset();
        return Dir.Path(Name);
    }
    // The same, opened, with the view's calls recorded from then on.
    std::string Make_Open(const std::string& Name) {
        std::string Path = Make_Project(Name);
        Open_Project(Path);
        EXPECT_EQ(Projet_Open, 1) << Name;
        The_View.Tiles_Remove = [this] { Calls += "tiles "; };
        The_View.Ima_Unload = [this] { Calls += "pictures "; };
        return Path;
    }
    void Expect_Empty_State() {
        EXPECT_EQ(Projet_Open, 0);
        EXPECT_EQ(Edit_On, 0);
        EXPECT_FALSE(Host_Of_Test.Enabled["Cmd_Save"]);
        EXPECT_EQ(Host_Of_Test.Caption["Frm"], "Terrafold V5.0 04/10/2003");
        EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    }

    std::string Calls;
};

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

TEST_F(Lifecycle, WhatAFailedNewLeftGoesBeforeTheNextProject) {
    Make_Open("one.LWM");
    Mnu_File_Close();
    Projet_Open = Edit_On = 0;
    const std::function<void()> Commands[] = {Cmd_New, Mnu_File_Open, [] { Mnu_File_Prec(0); },
                                              [this] { Open_From_Outside(Dir.Path("one.LWM")); }};
    for (const auto& Command : Commands) {
        Calls.clear();
        Nb_Tiles = 6;  // the dialog of a new project had cut its map
        The_View.Tiles_Remove = [this] {
            Calls += std::to_string(Nb_Tiles);
            Nb_Tiles = 0;
        };
        Command();
        EXPECT_EQ(Calls.substr(0, 1), "6") << "while their number is known";
        Projet_Open = 0;
    }
}

TEST_F(Lifecycle, AFileThatCannotBeOpenedLeavesNoProjectAndNoPictures) {
    const std::string Whole = Make_Open("one.LWM");
    const std::string Bytes = Dir.Read("one.LWM");
    Dir.Write("damaged.LWM", Bytes.substr(0, Bytes.size() / 2));
    Dir.Write("text.LWM", "not a project\r\n");
    Dir.Write("map.LWM", Bytes);
    for (const char* Name : {"damaged.LWM", "text.LWM", "missing.LWM", "map.LWM"}) {
        const bool Map_Refused = std::string_view(Name) == "map.LWM";
        The_View.Tiles_Build = nullptr;
        Open_Project(Whole);
        The_View.Tiles_Build = [Map_Refused] { return !Map_Refused; };
        Host_Of_Test.Box_Answers = {Button_No};
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.File_Answers = {Dir.Path(Name)};
        Calls.clear();
        Mnu_File_Open();
        Expect_Empty_State();
        EXPECT_EQ(Host_Of_Test.Boxes.size(), Map_Refused ? 1U : 2U) << Name;
        EXPECT_EQ(DerApt[0], Whole) << "not in the recent list";
        EXPECT_EQ(Calls, "tiles pictures ") << Name;
        EXPECT_TRUE(!Map_Refused || Nb_Obj == 1) << "nothing of it is left";
    }
}
