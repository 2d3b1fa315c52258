// tests/ui/test_dialogs.cpp - the dialogs of the program's settings.
#include <filesystem>

#include "core/lifecycle.h"
#include "core/settings.h"
#include "core/view_calls.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "platform/settings_file.h"
#include "ui/dialogs/frm_dir.h"
#include "ui/form/form_list.h"
#include "ui/form/mnemonics.h"
#include "ui/frm/frm.h"
#include "ui_support/ui_test.h"

namespace {

class Dialogs : public Ui_Test {
protected:
    void Run(const char* Name, std::function<void(Form_Driver&)> Work) {
        const Modal_Script Script(std::move(Work));
        The_Host().Run_Form(Name);
    }
    std::string Setting(const char* Key) {
        return Setting_In_Text(File_Read(Ini_File).value_or(""), "Terrafold", Key).value_or("none");
    }
    // A directory of this test's own.
    std::string Make_Dir(const std::string& Name) {
        EXPECT_TRUE(Dir_Create(Dir.Path(Name)));
        return Dir.Path(Name);
    }
};

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
        EXPECT_TRUE(!Needs_Words(C) || C.Words.Is_Set() || C.Tip_Words.Is_Set()) << Where;
        EXPECT_TRUE(C.Caption.empty() || C.Words.Is_Set()) << Where << ": in one language only";
        EXPECT_TRUE(C.Kind != Control_Kind::Options || !C.Item_Words.empty() || !C.Colours.empty())
            << Where;
    }
}

}  // namespace

TEST_F(Dialogs, EveryTextHasBothWordings) {
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
        EXPECT_EQ(Seen, "FP") << Lang << ": all letters of Tools and Outils are taken";
    }
}

TEST_F(Dialogs, GeneralParametersAreKept) {
    const std::string FS = Make_Dir("FS9");
    ASSERT_TRUE(Setting_Put("Language", "FR"));
    Run("Frm_PGen", [&](Form_Driver& D) {
        EXPECT_EQ(D.Title(), "Param\xE8tres g\xE9n\xE9raux");
        EXPECT_FALSE(D.Type("DirFS", Dir.Path("nowhere")) && D.Click("Cmd_Ok"));
        EXPECT_EQ(D.Last_Message(), 1);
        EXPECT_EQ(D.Has_Focus(), "DirFS");
        D.Type("DirFS", FS);
        D.Choose("Opt_Lang", 1);
        EXPECT_EQ(D.Title(), "Main parameters") << "reworded while it is open";
        EXPECT_EQ(D.Caption("DirFS"), "FS9 Directory :");
        EXPECT_EQ(D.Text("DirFS"), FS + "\\");
        EXPECT_EQ(Language, "FR") << "not before Ok";
        D.Click("Cmd_Help");
        D.Click("Cmd_Ok");
    });
    EXPECT_EQ(Language, "US");
    EXPECT_EQ(DirFS, FS + "\\");
    EXPECT_EQ(Dir_Texture, FS + "\\Scenery\\world\\Texture");
    EXPECT_EQ(Fl1Fois, 1);
    EXPECT_EQ(Setting("DirFS"), FS + "\\");
    EXPECT_EQ(Setting("Language"), "US");
    EXPECT_EQ(Setting("Fl1Fois"), "1");
    EXPECT_EQ(Frm()["Mnu_File"].Caption, "Files") << "the main form is reworded at once";
}

TEST_F(Dialogs, CancelledParametersStay) {
    const std::string FS = Make_Dir("FS9");
    Fl1Fois = 1;
    Run("Frm_PGen", [&](Form_Driver& D) {
        D.Choose("Opt_Lang", 1);
        D.Type("DirFS", FS);
        D.Click("Cmd_Cancel");
    });
    EXPECT_EQ(Language, "FR");
    EXPECT_EQ(DirFS, "");
    EXPECT_EQ(Setting("Language"), "none");
}

TEST_F(Dialogs, ADirectoryIsChosenByWalking) {
    Make_Dir("top");
    Make_Dir("top\\inner");
    const std::string Other = Make_Dir("top\\Other");
    Make_Dir("top\\.hidden");
    std::string Path = Dir.Path("top");
    Int Cancelled = 1;
    Dir_Title = "Where to";
    const Modal_Script Walks([&](Form_Driver& D) {
        EXPECT_EQ(D.Title(), "Where to");
        EXPECT_EQ(D.Items("Dir1"), (std::vector<std::string>{"..", "inner", "Other"}));
        D.Choose("Dir1", "inner");
        D.Double_Click("Dir1");
        EXPECT_EQ(D.Text("Path"), Dir.Path("top\\inner"));
        D.Choose("Dir1", "..");
        EXPECT_TRUE(D.Enter()) << "the keyboard goes in as well";
        D.Choose("Dir1", "Other");
        D.Enter();
        EXPECT_TRUE(D.Enter()) << "with nothing chosen it takes the directory shown";
    });
    Choose_Dir(Path, Cancelled);
    EXPECT_EQ(Cancelled, 0);
    EXPECT_EQ(Path, Other);
    const Modal_Script Cancels([&](Form_Driver& D) {
        D.Choose("Drive1", 0);
        EXPECT_EQ(D.Text("Path"), Drive_List().front());
        D.Click("Cmd_Cancel");
    });
    Choose_Dir(Path, Cancelled);
    EXPECT_EQ(Cancelled, 1);
    EXPECT_EQ(Path, Other);
}

TEST_F(Dialogs, TheChooserBeginsWhereItCan) {
    const std::pair<std::string, std::string> Starts[] = {
        {"", App_Path},
        {App_Path + "\\", App_Path},
        {App_Path + "\\gone\\for good\\", App_Path},
        {"no path", App_Path}};
    for (const auto& [Given, Shown] : Starts) {
        const Modal_Script Looks([&Wanted = Shown, &Start = Given](Form_Driver& D) {
            EXPECT_EQ(D.Text("Path"), Wanted) << Start;
            D.Close();
        });
        std::string Path = Given;
        Int Cancelled = 0;
        Choose_Dir(Path, Cancelled);
        EXPECT_EQ(Cancelled, 1);
        EXPECT_EQ(Path, Given);
    }
}

TEST_F(Dialogs, TheSimulatorsDirectoryIsChosenByADoubleClick) {
    const std::string FS = Make_Dir("FS9");
    Run("Frm_PGen", [&](Form_Driver& D) {
        const Modal_Script Leaves([](Form_Driver& Chooser) { Chooser.Click("Cmd_Cancel"); });
        D.Type("DirFS", "half a path");
        D.Double_Click("DirFS");
        EXPECT_EQ(D.Text("DirFS"), "half a path");
        D.Choose("Opt_Lang", 1);
        EXPECT_EQ(D.Last_Message(), 1) << "still to be read";
        D.Escape();
        D.Choose("Opt_Lang", 1);
        const Modal_Script Chooses([&](Form_Driver& Chooser) {
            EXPECT_EQ(Chooser.Title(), "FS9 directory") << "in the language just chosen";
            Dir_Path = FS;
            Chooser.Click("Cmd_Ok");
        });
        D.Double_Click("DirFS");
        EXPECT_EQ(D.Text("DirFS"), FS + "\\");
        D.Click("Cmd_Ok");
    });
    EXPECT_EQ(DirFS, FS + "\\");
}

TEST_F(Dialogs, SettingsThatCannotBeKeptAreTold) {
    File_Delete(App_Path + "\\Resource\\.keep");
    std::filesystem::remove(Dir.Native("App/Resource"));
    Run("Frm_PGen", [](Form_Driver& D) {
        D.Choose("Opt_Lang", 1);
        D.Click("Cmd_Ok");
    });
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_EQ(Host_Of_Test.Boxes[0].Text, "The settings could not be saved");
    EXPECT_EQ(Language, "US") << "they hold for this run";
    EXPECT_EQ(Fl1Fois, 1);
}

TEST_F(Dialogs, TheGridColourIsChosenByAClick) {
    Run("Frm_ColourGrid", [](Form_Driver& D) {
        EXPECT_EQ(D.Value("Opt_ColourGrid"), 2);
        D.Choose("Opt_ColourGrid", 5);
    });
    EXPECT_EQ(Grid_Colour, 0x404040);
    EXPECT_EQ(Grid_Colour_Index, 5);
    Run("Frm_ColourGrid", [](Form_Driver& D) {
        EXPECT_EQ(D.Value("Opt_ColourGrid"), 5);
        EXPECT_TRUE(D.Escape());
    });
    EXPECT_EQ(Grid_Colour_Index, 5);
}
