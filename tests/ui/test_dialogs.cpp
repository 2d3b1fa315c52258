// tests/ui/test_dialogs.cpp - what all forms have in common, and what a script cannot bring about.
#include <filesystem>

#include "core/model.h"
#include "core/typed_number.h"
#include "grid/terrain_grid.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "ui/canvas/edit_state.h"
#include "ui/dialogs/frm_dir.h"
#include "ui/form/form_events.h"
#include "ui/form/form_list.h"
#include "ui/form/mnemonics.h"
#include "ui/frm/frm.h"
#include "ui_support/ui_test.h"

namespace {

class Dialogs : public Ui_Test {};

void Expect_Both(const Wording& W, const std::string& Where) {
    EXPECT_EQ(*W.US == '\0', *W.FR == '\0') << Where << ": " << W.US << " / " << W.FR;
}

// Recent projects have their paths.
bool Needs_Words(const Control& C) {
    switch (C.Kind) {
        case Control_Kind::Button:
        case Control_Kind::Check:
        case Control_Kind::Frame:
        case Control_Kind::Tab:
        case Control_Kind::Menu:
            return true;
        case Control_Kind::Menu_Item:
            return !C.Name.starts_with("Mnu_File_Prec");
        default:
            return false;
    }
}

void Expect_Whole(const Form& F) {
    Expect_Both(F.Title_Words(), F.Name());
    for (const Control& C : F.Controls()) {
        const std::string Where = F.Name() + " " + C.Name;
        EXPECT_TRUE(F.Is_Shown(C.Name)) << Where << " stands nowhere";
        Expect_Both(C.Words, Where);
        Expect_Both(C.Tip_Words, Where);
        for (const Wording& W : C.Item_Words) {
            Expect_Both(W, Where);
            EXPECT_TRUE(W.Is_Set()) << Where;
        }
        const bool Is_Number = !C.Caption.empty() && Typed_Number(C.Caption).has_value();
        if (Is_Number) continue;  // which every language reads
        EXPECT_TRUE(!Needs_Words(C) || C.Words.Is_Set() || C.Tip_Words.Is_Set()) << Where;
        EXPECT_TRUE(C.Caption.empty() || C.Words.Is_Set()) << Where << ": in one language only";
        EXPECT_TRUE(C.Kind != Control_Kind::Options || !C.Items.empty() || !C.Colours.empty())
            << Where;
    }
}

}  // namespace

TEST_F(Dialogs, EveryTextHasBothWordings) {
    Ima_Dialog = Ima_Dialogs::Create;
    Expect_Whole(Frm());
    for (const std::string& Name : Form_Names()) Expect_Whole(*Form_Make(Name));
    EXPECT_GE(Form_Names().size(), 3U);
}

TEST_F(Dialogs, MenuLettersKeepOutOfTheWay) {
    for (const char* Lang : {"FR", "US"}) {
        Frm().Set_Language(Lang);
        std::string Seen;
        for (const auto& [Menu, At] : Menu_Mnemonics(Frm())) {
            const auto Letter = static_cast<char>(Frm()[Menu].Caption.at(At) & ~0x20);
            EXPECT_EQ(Frm().Reserved_Keys.find(Letter), std::string::npos) << Menu;
            EXPECT_EQ(Seen.find(Letter), std::string::npos) << Menu;
            Seen += Letter;
        }
        EXPECT_EQ(Seen, Lang == std::string("FR") ? "FBPXH" : "FHBPQXV") << Lang;
    }
}

TEST_F(Dialogs, TheChooserBeginsWhereItCan) {
    const std::pair<std::string, std::string> Starts[] = {
        {"", App_Path},
        {App_Path + "\\", App_Path},
        {App_Path + "\\gone\\for good\\", App_Path},
        {"no path", App_Path}};
    for (const auto& [Given, Shown] : Starts) {
        const Modal_Script Looks([&Wanted = Shown, &Start = Given](Form_Driver& D) {
            EXPECT_EQ(D.Text("Path"), Shown_Path(Wanted)) << Start;
            D.Close();
        });
        std::string Path = Given;
        Int Cancelled = 0;
        Choose_Dir(Path, Cancelled);
        EXPECT_EQ(Cancelled, 1);
        EXPECT_EQ(Path, Given);
    }
}

// Pixels of a Cell on the map, and the level advised: the last has lines 7 pixels apart.
TEST_F(Dialogs, TheMeshIsAdvisedByTheScaleOfTheMap) {
    LatPtNW = Cell_StepLat, LonPtSE = Cell_StepLon;
    LatPtSE = LonPtNW = 0.0;
    XPtSE = 1000;
    for (const auto& [Pixels, Lod] : {std::pair{893, 12}, {892, 11}, {56, 8}, {55, 0}}) {
        YPtSE = Pixels;
        LodMesh = 3;
        Mesh_Done = 0;
        const auto Mesh = Form_Make("Frm_Mesh");
        Form_Load(*Mesh);
        EXPECT_EQ((*Mesh)["L_Info_Cons"].Caption, Lod == 0 ? "" : "Lod" + std::to_string(Lod));
        EXPECT_EQ((*Mesh)["Opt_LodMesh"].Value, Lod == 0 ? -1 : 12 - Lod);
        Form_Click(*Mesh, "Cmd_Ok");
        EXPECT_EQ(LodMesh, Lod == 0 ? 3 : 12 - Lod) << Pixels;
        EXPECT_EQ(Mesh_Done, 1);
    }
}

TEST_F(Dialogs, SettingsThatCannotBeKeptAreTold) {
    File_Delete(App_Path + "\\Resource\\.keep");
    std::filesystem::remove(Dir.Native("App/Resource"));
    const Modal_Script Chooses([](Form_Driver& D) {
        D.Choose("Opt_Lang", 1);
        D.Click("Cmd_Ok");
    });
    The_Host().Run_Form("Frm_PGen");
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_EQ(Host_Of_Test.Boxes[0].Text, "The settings could not be saved");
    EXPECT_EQ(Language, "US") << "they hold for this run";
    EXPECT_EQ(Fl1Fois, 1);
}
