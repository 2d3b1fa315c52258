// tests/ui/test_frm.cpp - the main form's commands, from New to Quit.
#include "ui/frm/frm.h"

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "core/settings.h"
#include "platform/files.h"
#include "ui/canvas/map_tiles.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/form/form_events.h"
#include "ui_support/small_project.h"
#include "ui_support/ui_test.h"

namespace {

class Main_Form_Test : public Ui_Test {
protected:
    Main_Form_Test() {
        View_Resize(301, 301);
        Small = Write_Small_Project(Dir, "small");
        Other = Write_Small_Project(Dir, "other");
        Host_Of_Test.Forms["Frm_PPro"] = [this] {
            Nom_Projet = Dir.Path("new.LWM");
            PPro_Ok = 1;
            return Form_End::Ok;
        };
    }
    bool Tiles_Are_There() const { return File_Exists(Tile_Path(0)); }
    // Opens Small anew with one object more than its file has.
    void Open_Changed() {
        Projet_Open = 0;
        Open_Project(Small);
        Obj_Add({}, 1.0, 1.0);
        Host_Of_Test.Boxes.clear();
    }
    Long Saved_Objects() {
        EXPECT_TRUE(Load_Project(Small));
        const Long Nb = Nb_Obj;
        Projet_Open = 0;
        return Nb;
    }

    std::string Small, Other;
};

}  // namespace

TEST_F(Main_Form_Test, AProjectIsOpenedFromTheMenu) {
    EXPECT_FALSE(Form_Click(Frm(), "Mnu_File_Close"));
    Host_Of_Test.File_Answers = {Small};
    EXPECT_TRUE(Form_Click(Frm(), "Mnu_File_Open"));
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Mode_Area, 1);
    EXPECT_EQ(Frm().Title(), std::string(Program_Title) + "  " + Small);
    EXPECT_EQ(Frm()["Mnu_File_Prec(0)"].Caption, Small);
    EXPECT_TRUE(Frm().Is_Visible("Mnu_File_Prec(0)"));
    EXPECT_FALSE(Frm().Is_Visible("Mnu_File_Prec(1)")) << "a free place in the list";
    EXPECT_FALSE(Frm().Is_Visible("LTex2500")) << "the map is cut and loaded";
    EXPECT_TRUE(Tiles_Are_There());
    EXPECT_EQ(Nb_Tiles, 1);
    Host_Of_Test.Box_Answers = {Button_No};
    Form_Click(Frm(), "Mnu_File_Close");
    EXPECT_EQ(Frm().Title(), Program_Title);
    EXPECT_FALSE(Tiles_Are_There());
    EXPECT_TRUE(WPic.at(0).Is_Empty());
}

TEST_F(Main_Form_Test, TheQuestionIsAskedBeforeEachCommandThatLeavesTheProject) {
    struct Row {
        const char* Name;
        std::function<void()> Run;
    };
    const Row Commands[] = {
        {"New", [] { Form_Click(Frm(), "Cmd_New"); }},
        {"Open", [] { Form_Click(Frm(), "Mnu_File_Open"); }},
        {"recent", [] { Form_Click(Frm(), "Mnu_File_Prec(1)"); }},
        {"dropped", [this] { Frm().On_Drop(Other); }},
        {"Close", [] { Form_Click(Frm(), "Mnu_File_Close"); }},
        {"Quit", [] { Form_Click(Frm(), "Mnu_File_Quit"); }},
        {"window closed", [] { Form_User_Close(Frm()); }},
    };
    for (const Row& C : Commands)
        for (const Int Answer : {Button_Cancel, Button_No, Button_Yes}) {
            if (Frm().Is_Closed()) Frm_Install();
            Write_Small_Project(Dir, "small");
            DerApt = {Small, Other, "", ""};
            Open_Changed();
            Host_Of_Test.File_Answers = {Other};
            Host_Of_Test.Box_Answers = {Answer};
            C.Run();
            ASSERT_FALSE(Host_Of_Test.Boxes.empty()) << C.Name;
            EXPECT_EQ(Host_Of_Test.Boxes[0].Style, Box_Question + Box_Yes_No_Cancel) << C.Name;
            const bool Stays = Answer == Button_Cancel;
            EXPECT_EQ(Projet_Open == 1 && Nom_Projet == Small && Nb_Obj == 3, Stays)
                << C.Name << ", answer " << Answer;
            EXPECT_EQ(Frm().Is_Closed(),
                      !Stays && std::string_view(C.Name).find_first_of("Qw") == 0)
                << C.Name << ", answer " << Answer;
            if (Projet_Open == 0) {
                EXPECT_FALSE(Tiles_Are_There()) << C.Name;
            }
            EXPECT_EQ(Saved_Objects(), Answer == Button_Yes ? 3 : 2) << C.Name;
        }
}

TEST_F(Main_Form_Test, AMapThatCannotServeLeavesNoProject) {
    Frm().Set_Title(Program_Title);
    for (const char* What : {"", "no bitmap", "BM"}) {
        if (*What == '\0')
            File_Delete(Dir.Path("small.bmp"));
        else
            Dir.Write("small.bmp", What);
        Host_Of_Test.Boxes.clear();
        Host_Of_Test.File_Answers = {Small};
        Form_Click(Frm(), "Mnu_File_Open");
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U) << "the user is told: " << What;
        EXPECT_EQ(Projet_Open, 0);
        EXPECT_EQ(Edit_On, 0);
        EXPECT_FALSE(Frm().Is_Enabled("Cmd_Save"));
        EXPECT_FALSE(Tiles_Are_There());
        EXPECT_EQ(Frm().Title(), Program_Title);
        EXPECT_EQ(Nb_Obj, 1) << "nothing of it is left to be saved";
        EXPECT_EQ(DerApt[0], "");
    }
}

TEST_F(Main_Form_Test, OnlyProjectsMayBeDropped) {
    Frm().On_Drop(Dir.Path("small.bmp"));
    EXPECT_EQ(Projet_Open, 0);
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    Frm().On_Drop(Small);
    EXPECT_EQ(Nom_Projet, Small);
    EXPECT_EQ(Projet_Open, 1);
}

TEST_F(Main_Form_Test, TheLanguageChangesAtOnce) {
    Language = "FR";
    Apply_Language();
    EXPECT_EQ(Frm()["Mnu_File"].Caption, "Fichiers");
    EXPECT_EQ(Frm()["Cmd_ZPlus"].Tip, "Zoom +");
    EXPECT_EQ(Frm()["Cmd_Tabul"].Tip, "Rechercher objet");
    Frm().Set_Title("kept");
    Language = "US";
    Apply_Language();
    EXPECT_EQ(Frm()["Mnu_File"].Caption, "Files");
    EXPECT_EQ(Frm()["Cmd_Tabul"].Tip, "Find objects");
    EXPECT_EQ(Frm()["Cmd_LandClass"].Caption, "LC");
    EXPECT_EQ(Frm().Title(), "kept");
    Language = "anything else";
    Apply_Language();
    EXPECT_EQ(Frm()["Mnu_Tools"].Caption, "Outils");
}
