// tests/ui/test_modes.cpp - which buttons are in reach in which state, and what a mode change
// does.
#include "ui/edit/modes.h"

#include <map>
#include <set>
#include <sstream>

#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/program.h"
#include "gen/driver.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/edit/route_state.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"
#include "ui_support/small_project.h"
#include "ui_support/ui_test.h"

namespace {

struct Mode_Row {
    const char* Button;
    Int* Flag;
    const char* Tools;  // buttons that the mode turns on
};

const Mode_Row All_Modes[] = {
    {"Cmd_TrtArea", &Mode_Area, ""},
    {"Cmd_TrtCell", &Mode_Cell, ""},
    {"Cmd_Excl_Areas", &Mode_Excl, ""},
    {"Cmd_LandClass", &Mode_LC, "Cmd_AffTexture"},
    {"Cmd_WaterClass", &Mode_WC, "Cmd_AffTexture"},
    {"Cmd_Saisie_Routes", &Mode_Route,
     "Cmd_Sel_Route Cmd_New_Route Cmd_Ins_Pt_Route Cmd_Sel_Pt_Route Cmd_Extr_Pt_Route "
     "Cmd_Sup_Route_Ou_Pt Cmd_Tabul"},
    {"Cmd_TrtMesh", &Mode_PtGrid, ""},
    {"Cmd_TrtIma", &Mode_Ima, "Cmd_New_Ima Cmd_Sel_Ima Cmd_Sup_Route_Ou_Pt"},
};

using Name_Set = std::set<std::string>;

Name_Set Words(const std::string& Line) {
    std::istringstream In(Line);
    return {std::istream_iterator<std::string>(In), {}};
}

// Always in reach, and in reach while a project is open.
const Name_Set Always = Words(
    "Cmd_New Cmd_Help Mnu_File_New Mnu_File_Open Mnu_File_Quit Mnu_Param_Gene Mnu_Tool_CvLL "
    "Mnu_File_Prec(0) Mnu_File_Prec(1) Mnu_File_Prec(2) Mnu_File_Prec(3)");
const Name_Set With_Project = Words(
    "Mnu_File_Close Mnu_File_Enreg Mnu_File_Enreg_Sous Mnu_Reinit Mnu_Param_File Mnu_par_Remesh "
    "Mnu_ModCad Cmd_Save Cmd_ZPlus Cmd_ZMoins Cmd_AffBmp Cmd_ColourGrid Cmd_Grid Cmd_API HScroll "
    "VScroll Cmd_FSUIPC");

Name_Set Expected(const Mode_Row& M) {
    Name_Set All = Always;
    All.insert(With_Project.begin(), With_Project.end());
    for (const Mode_Row& Other : All_Modes) All.insert(Other.Button);
    All.erase(M.Button);
    All.merge(Words(M.Tools));
    return All;
}

Name_Set In_Reach() {
    Name_Set Found;
    for (const Control& C : Frm().Controls())
        if (C.Enabled && (C.Kind == Control_Kind::Button || C.Kind == Control_Kind::Menu_Item ||
                          C.Kind == Control_Kind::Scroll_Bar))
            Found.insert(C.Name);
    return Found;
}

class Counting_Surface final : public Surface {
public:
    int Redraws = 0;
    void Clear() override { ++Redraws; }
    void Stretch_Copy(const Picture&, Box_Px, Box_Px) override {}
    void Lines(std::span<const Line_Px>, const Pen&) override {}
    void Refresh() override {}
    void Set_Cursor(Pointer_Shape) override {}
    void Overlay_Changed() override {}
};

class Modes : public Ui_Test {
protected:
    Modes() {
        View_Resize(301, 301);
        Open_Project(Write_Small_Project(Dir, "small"));
        Mesh_Done = 1;
    }
    // A polygon linked to a texture, with its last point outside.
    void Drag_Out_Of_Texture() {
        Ima Texture;
        Texture.X2 = Texture.Y2 = 100;
        Ima_Add(Texture);
        Tab_Obj[First_Obj].Attr.LWM_VTP2 = 2;
        Tab_Obj[First_Obj].Attr.VTP1_SpecNor = 0;
        Tab_Obj[First_Obj].Attr.Link_Ima = Tab_Ima[1].Num;
    }
    void Expect_Only(const Mode_Row& M) {
        for (const Mode_Row& Other : All_Modes) {
            EXPECT_EQ(*Other.Flag, Other.Flag == M.Flag ? 1 : 0)
                << M.Button << ": " << Other.Button;
            EXPECT_EQ(Frm()[Other.Button].Value, *Other.Flag) << "the button looks pressed";
        }
        EXPECT_EQ(In_Reach(), Expected(M)) << M.Button;
    }

    Counting_Surface Screen;
    Surface_Scope Scope{Screen};
};

}  // namespace

TEST_F(Modes, AProjectOpensInModeArea) {
    EXPECT_EQ(Edit_On, 1);
    Expect_Only(All_Modes[0]);
}

TEST_F(Modes, EveryModeFollowsEveryOther) {
    for (const Mode_Row& From : All_Modes)
        for (const Mode_Row& To : All_Modes) {
            if (&From == &To) continue;
            Form_Click(Frm(), From.Button);
            Host_Of_Test.Pointer = Pointer_Shape::Normal;
            const int Before = Screen.Redraws;
            EXPECT_TRUE(Form_Click(Frm(), To.Button)) << From.Button << " to " << To.Button;
            Expect_Only(To);
            EXPECT_EQ(Screen.Redraws, Before + 1) << To.Button;
            EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Cross) << To.Button;
            EXPECT_EQ(The_Overlay.LPtGrid.Visible, To.Flag == &Mode_PtGrid) << To.Button;
            EXPECT_EQ(Frm().Focus(), "Pic");
            EXPECT_FALSE(Form_Click(Frm(), To.Button)) << "the mode's own button is out of reach";
        }
}

TEST_F(Modes, APolygonOutsideItsTextureKeepsTheMode) {
    for (const Mode_Row& From : All_Modes) {
        Tab_Obj[First_Obj].Attr.Link_Ima = 0;
        Form_Click(Frm(), From.Button);
        Drag_Out_Of_Texture();
        for (const Mode_Row& To : All_Modes) {
            if (&From == &To || To.Flag == &Mode_Ima) continue;
            EXPECT_TRUE(Form_Click(Frm(), To.Button));
            EXPECT_EQ(Host_Of_Test.Last_Message(), 130) << To.Button;
            Expect_Only(From);
        }
    }
    Form_Click(Frm(), "Cmd_TrtIma");
    EXPECT_EQ(Mode_Ima, 1) << "textures are mended in this mode, so it goes without the check";
}

TEST_F(Modes, AltitudesNeedAMesh) {
    Mesh_Done = 0;
    Form_Click(Frm(), "Cmd_TrtMesh");
    Expect_Only(All_Modes[0]);
    int Runs = 0;
    Host_Of_Test.Forms["Frm_Mesh"] = [&] {
        Mesh_Done = 1;
        ++Runs;
        return Form_End::Ok;
    };
    Form_Click(Frm(), "Cmd_TrtMesh");
    EXPECT_EQ(Mode_PtGrid, 1);
    Form_Click(Frm(), "Cmd_TrtArea");
    Form_Click(Frm(), "Cmd_TrtMesh");
    EXPECT_EQ(Runs, 1) << "asked for once";
}

TEST_F(Modes, LeavingDrawingEndsIt) {
    int Steps = 0;
    The_Mode_Calls.Tool_Cancel = [&] { ++Steps; };
    Form_Click(Frm(), "Cmd_Saisie_Routes");
    Obj_Selected = 1;
    Sel_Obj = First_Obj;
    Form_Click(Frm(), "Cmd_TrtCell");
    EXPECT_EQ(Steps, 2);
    EXPECT_EQ(Obj_Selected, 0);
    Form_Click(Frm(), "Cmd_TrtArea");
    EXPECT_EQ(Steps, 2) << "nothing is drawn in the other modes";
}

TEST_F(Modes, ProjectStates) {
    Form_Click(Frm(), "Cmd_Saisie_Routes");
    Host_Of_Test.Box_Answers = {Button_Yes};
    Form_Click(Frm(), "Mnu_Reinit");
    Expect_Only(All_Modes[0]);
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Nb_Tiles, 1) << "the map is still there";
    Host_Of_Test.Box_Answers = {Button_No};
    Form_Click(Frm(), "Mnu_File_Close");
    EXPECT_EQ(In_Reach(), Always);
    EXPECT_EQ(Edit_On, 0);
}

TEST_F(Modes, DoubleClicksReachTheDialogOfTheirMode) {
    const std::map<std::string, std::pair<std::string, Int*>> Dialogs = {
        {"Cmd_TrtArea", {"Frm_LOD", &Area_Cancelled}},
        {"Cmd_TrtCell", {"Frm_LOD8", &Area_Cancelled}},
        {"Cmd_Excl_Areas", {"Frm_Excl", &Excl_Cancelled}},
        {"Cmd_LandClass", {"Frm_LC", &LC_Cancelled}},
        {"Cmd_WaterClass", {"Frm_WC", &WC_Cancelled}}};
    const Pic_Px Inside = Map_To_Pic({(XGridNW + XGridSE) / 2, (YGridNW + YGridSE) / 2});
    std::string Ran;
    for (const auto& [Button, Dialog] : Dialogs)
        Host_Of_Test.Forms[Dialog.first] = [&Ran, Name = Dialog.first, Flag = Dialog.second] {
            Ran += Name;
            EXPECT_EQ(*Flag, 1) << Name << ": cancelled until its Ok says otherwise";
            *Flag = Ran.size() > Name.size() ? 1 : 0;  // Ok the first time only
            return Form_End::Ok;
        };
    const auto Double_Click = [&] {
        Pic_Mouse({.What = Mouse_Event::Kind::Move, .X = Inside.X, .Y = Inside.Y});
        Pic_Mouse(
            {.What = Mouse_Event::Kind::Press, .Button = Mouse_Left, .X = Inside.X, .Y = Inside.Y});
        Pic_Mouse({.What = Mouse_Event::Kind::Release,
                   .Button = Mouse_Left,
                   .X = Inside.X,
                   .Y = Inside.Y});
        Pic_Mouse({.What = Mouse_Event::Kind::Double_Click,
                   .Button = Mouse_Left,
                   .X = Inside.X,
                   .Y = Inside.Y});
    };
    for (const auto& [Button, Dialog] : Dialogs) {
        Form_Click(Frm(), Button);
        Ran.clear();
        const int Before = Screen.Redraws;
        Double_Click();
        EXPECT_EQ(Ran, Dialog.first) << Button;
        EXPECT_EQ(Screen.Redraws, Before + 1) << Button << ": painted anew after Ok";
        Double_Click();
        EXPECT_EQ(Screen.Redraws, Before + 1) << Button << ": not after Cancel";
        Ran.clear();
        Mouse_Map_X = static_cast<Long>(XGridSE) + 2;
        Pic_Double_Click();
        EXPECT_EQ(Ran, Dialog.first == "Frm_Excl" ? "Frm_Excl" : "") << "outside the work grid";
    }
    Edit_On = 0;
    Ran.clear();
    Double_Click();
    EXPECT_EQ(Ran, "") << "no mouse work without a project";
}

TEST_F(Modes, TheMiddleButtonDragsTheMap) {
    const Double X = Pan_X, Y = Pan_Y;
    Zoom = 2.0;
    Pic_Mouse({.What = Mouse_Event::Kind::Press, .Button = Mouse_Middle, .X = 100, .Y = 100});
    Pic_Mouse({.What = Mouse_Event::Kind::Move, .Button = Mouse_Middle, .X = 110, .Y = 96});
    EXPECT_EQ(Pan_X, X + 5.0);
    EXPECT_EQ(Pan_Y, Y - 2.0);
    Pic_Mouse({.What = Mouse_Event::Kind::Release, .Button = Mouse_Middle, .X = 110, .Y = 96});
    Pic_Mouse({.What = Mouse_Event::Kind::Move, .X = 150, .Y = 150});
    EXPECT_EQ(Pan_X, X + 5.0);
}

TEST_F(Modes, CommandsAreOutOfReachWhileTheSceneryIsMade) {
    Form_Click(Frm(), "Cmd_LandClass");
    const Name_Set Before = In_Reach();
    Name_Set During;
    Host_Of_Test.Tool = [&](std::string_view) {
        During = In_Reach();
        EXPECT_TRUE(Frm().Is_Visible("LCompile"));
        EXPECT_NE(Frm()["LCompile"].Caption, "");
        return true;
    };
    Form_Click(Frm(), "Cmd_API");
    EXPECT_EQ(During, Name_Set{}) << "a tool ran with commands in reach";
    EXPECT_FALSE(Host_Of_Test.Events.empty());
    EXPECT_EQ(In_Reach(), Before);
    EXPECT_FALSE(Frm().Is_Visible("LCompile"));
    EXPECT_EQ(Mode_LC, 1);
}
