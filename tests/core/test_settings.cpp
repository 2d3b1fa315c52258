// tests/core/test_settings.cpp - the settings file and the recent projects.
#include "core/settings.h"

#include "platform/settings_file.h"
#include "support/environment.h"
#include "support/program_test.h"

class Settings : public Program_Test {
protected:
    void Ini(std::string_view Lines) {
        Dir.Write("App/Resource/Terrafold.Ini", "[Terrafold]\r\n" + std::string(Lines));
    }
    std::string Kept(std::string_view Key) {
        return Setting_Read(Ini_File, "Terrafold", Key, "absent");
    }
    void Recent(std::array<std::string, 4> Paths) {
        for (std::size_t I = 4; I-- > 0;) Recent_Update(Paths[I], 1);
    }
    static std::string List() {
        return DerApt[0] + "|" + DerApt[1] + "|" + DerApt[2] + "|" + DerApt[3];
    }
    // The list as the next start will see it, and as the menu shows it.
    std::string List_Kept() {
        return Kept("DerApt1") + "|" + Kept("DerApt2") + "|" + Kept("DerApt3") + "|" +
               Kept("DerApt4");
    }
    std::string Menu() {
        auto& C = Host_Of_Test.Caption;
        return C["Mnu_File_Prec(0)"] + "|" + C["Mnu_File_Prec(1)"] + "|" + C["Mnu_File_Prec(2)"] +
               "|" + C["Mnu_File_Prec(3)"];
    }

private:
    // No simulator on this computer, whatever it holds.
    Environment_Scope Named_{"TERRAFOLD_FSDIR"};
    Environment_Scope Wine_{"WINEPREFIX", Dir.Native("no wine").string()};
};

TEST_F(Settings, WithoutAFile) {
    Language = "??";
    Dir_Texture = "??";
    Read_Settings();
    EXPECT_EQ(Language, "FR");
    EXPECT_EQ(Fl1Fois, 0);
    EXPECT_EQ(ShowVTP1L, 0);
    EXPECT_EQ(DirFS + Dir_Texture + DerRefLu, "");
    EXPECT_EQ(List(), "|||");
    EXPECT_FALSE(Dir.Has("App/Resource/Terrafold.Ini")) << "reading writes nothing";
}

TEST_F(Settings, ValuesAreTrimmedAndShown) {
    Dir.Write("FS/Scenery/world.txt", "");
    Ini("Language= US \r\nFl1Fois= 1 \r\nDerRefLu = C:\\x.Ref\r\nShowVTP1L=1x\r\nDerApt2=  b.LWM "
        "\r\nDirFS=" +
        Dir.Path("FS") + "\r\n");
    Read_Settings();
    EXPECT_EQ(Language, "US");
    EXPECT_EQ(Fl1Fois, 1);
    EXPECT_EQ(ShowVTP1L, 1);
    EXPECT_EQ(DerRefLu, "C:\\x.Ref");
    EXPECT_EQ(DirFS, Dir.Path("FS") + "\\");
    EXPECT_EQ(Dir_Texture, Dir.Path("FS") + "\\Scenery\\world\\Texture");
    EXPECT_EQ(List(), "|b.LWM||");
    EXPECT_EQ(Menu(), List());
}

TEST_F(Settings, ADirectoryThatIsGoneIsDropped) {
    Ini("DirFS=" + Dir.Path("gone") + "\\\r\n");
    Read_Settings();
    EXPECT_EQ(DirFS, "");
    EXPECT_EQ(Dir_Texture, "");
}

TEST_F(Settings, TheSimulatorIsLookedForAndKept) {
    Dir.Write("Sim/Scenery/world.txt", "");
    Dir.Write("Empty/file.txt", "");
    {
        const Environment_Scope Named("TERRAFOLD_FSDIR", Dir.Native("Empty").string());
        Read_Settings();
        EXPECT_EQ(DirFS, "") << "no directory Scenery in it";
    }
    const Environment_Scope Named("TERRAFOLD_FSDIR", Dir.Native("Sim").string());
    Read_Settings();
    EXPECT_EQ(DirFS, Dir.Path("Sim") + "\\");
    EXPECT_EQ(Dir_Texture, Dir.Path("Sim") + "\\Scenery\\world\\Texture");
    EXPECT_EQ(Kept("DirFS"), DirFS);
    Ini("DirFS=" + Dir.Path("Empty") + "\\\r\n");
    Read_Settings();
    EXPECT_EQ(DirFS, Dir.Path("Empty") + "\\") << "what the user has set stays";
}

TEST_F(Settings, RecentProjectsMoveToTheHead) {
    Recent({"a.LWM", "b.LWM", "c.LWM", "d.LWM"});
    EXPECT_EQ(List(), "a.LWM|b.LWM|c.LWM|d.LWM");
    Recent_Update("C.lwm", 1);
    EXPECT_EQ(List(), "C.lwm|a.LWM|b.LWM|d.LWM") << "the others keep their order";
    Recent_Update("c.LWM", 1);
    EXPECT_EQ(List(), "C.lwm|a.LWM|b.LWM|d.LWM") << "at the head nothing changes";
    Recent_Update("\xE9.LWM", 1);
    EXPECT_EQ(List(), "\xE9.LWM|C.lwm|a.LWM|b.LWM") << "a new one pushes the last one out";
    Recent_Update(DerApt[3], 1);
    EXPECT_EQ(List(), "b.LWM|\xE9.LWM|C.lwm|a.LWM") << "an entry may be handed in itself";
    EXPECT_EQ(List_Kept(), List());
    EXPECT_EQ(Menu(), List());
}

TEST_F(Settings, RecentProjectsAreTakenOut) {
    Recent({"a.LWM", "\xE9.LWM", "c.LWM", "d.LWM"});
    Recent_Update("\xC9.lwm", 2);
    EXPECT_EQ(List(), "a.LWM|c.LWM|d.LWM|");
    Recent_Update("x.LWM", 2);
    EXPECT_EQ(List(), "a.LWM|c.LWM|d.LWM|");
    Recent_Update(DerApt[0], 2);
    EXPECT_EQ(List(), "c.LWM|d.LWM||");
    EXPECT_EQ(List_Kept(), List());
    EXPECT_EQ(Menu(), List());
    Recent_Update("", 1);
    EXPECT_EQ(List(), "c.LWM|d.LWM||") << "a free entry is no path";
}

TEST_F(Settings, TheListComesBackAtTheNextStart) {
    Ini("; my notes\r\nOther=1\r\n");
    Recent({"C:\\My Scenery\\a.LWM", "b.LWM", "", ""});
    const std::string Before = List();
    DerApt = {};
    Read_Settings();
    EXPECT_EQ(List(), Before);
    EXPECT_NE(Dir.Read("App/Resource/Terrafold.Ini").find("; my notes\r\nOther=1\r\n"),
              std::string::npos)
        << "what others wrote stays";
}
