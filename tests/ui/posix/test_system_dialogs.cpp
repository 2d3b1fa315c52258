// tests/ui/posix/test_system_dialogs.cpp - dialogs that show what the system knows: the user's
// language, and the drives.
#include <filesystem>

#include "core/lifecycle.h"
#include "core/settings.h"
#include "platform/files.h"
#include "platform/paths.h"
#include "support/environment.h"
#include "ui/dialogs/frm_dir.h"
#include "ui/frm/frm.h"
#include "ui_support/ui_test.h"

using System_Dialogs = Ui_Test;

TEST_F(System_Dialogs, TheFirstStartAsksUntilItIsConfirmed) {
    const Environment_Scope All("LC_ALL"), Messages("LC_MESSAGES");
    ASSERT_TRUE(Setting_Put("DirFS", "")) << "as it stands once the simulator was looked for";
    {
        const Environment_Scope Lang("LANG", "de_DE.UTF-8");
        const Modal_Script Cancels([](Form_Driver& D) {
            EXPECT_EQ(D.Value("Opt_Lang"), 1) << "English for whoever does not speak French";
            EXPECT_EQ(D.Title(), "Main parameters");
            D.Click("Cmd_Cancel");
        });
        const Modal_Script Closes([](Form_Driver& D) { D.Close(); });
        const Modal_Script Confirms([](Form_Driver& D) { D.Click("Cmd_Ok"); });
        EXPECT_EQ(Program_Start("", App_Path), Start_Outcome::Started);
        EXPECT_EQ(Language, "US");
        EXPECT_EQ(Frm()["Mnu_File"].Caption, "Files");
        Instance_Release();
    }
    const Environment_Scope Lang("LANG", "fr_FR.UTF-8");
    Fl1Fois = 0;
    const Modal_Script Again([](Form_Driver& D) {
        EXPECT_EQ(D.Value("Opt_Lang"), 1) << "what the settings say comes before the system";
        D.Close();
    });
    The_Host().Run_Form("Frm_PGen");
    File_Delete(Ini_File);
    const Modal_Script Anew([](Form_Driver& D) {
        EXPECT_EQ(D.Value("Opt_Lang"), 0);
        D.Close();
    });
    The_Host().Run_Form("Frm_PGen");
}

TEST_F(System_Dialogs, ADriveThatIsNotReadyIsLeftAlone) {
    Dir.Write("drive_c/FS9/fs9.exe", "");
    Dir.Write("dosdevices/keep", "");
    std::filesystem::create_directory_symlink("../drive_c", Dir.Native("dosdevices/c:"));
    const Environment_Scope Prefix("WINEPREFIX", Dir.Native().string());
    std::string Path = App_Path;
    Int Cancelled = 1;
    const Modal_Script Script([&](Form_Driver& D) {
        EXPECT_EQ(D.Items("Drive1"), (std::vector<std::string>{"/", "C:\\"}));
        D.Choose("Drive1", "C:\\");
        EXPECT_EQ(D.Text("Path"), Shown_Path("C:\\"));
        EXPECT_EQ(D.Items("Dir1"), std::vector<std::string>{"FS9"}) << "there is no way up";
        D.Choose("Drive1", 0);
        std::filesystem::remove_all(Dir.Native("drive_c"));
        D.Choose("Drive1", "C:\\");
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
        EXPECT_EQ(Host_Of_Test.Boxes[0].Text, "C:\\ n'est pas pr\xEAt");
        EXPECT_EQ(D.Value("Drive1"), 0);
        EXPECT_EQ(D.Text("Path"), "/");
        D.Click("Cmd_Ok");
    });
    Choose_Dir(Path, Cancelled);
    EXPECT_EQ(Cancelled, 0);
    EXPECT_EQ(Path, "\\");
}
