// tests/core/test_settings.cpp - the settings file and the recent projects.
#include "core/settings.h"

#include "core/grid_colours.h"
#include "platform/settings_file.h"
#include "support/environment.h"
#include "support/program_test.h"
#include "support/rows.h"

class Settings : public Program_Test {
protected:
    void Ini(const std::string& Lines) {
        Dir.Write("App/Resource/Terrafold.Ini", "; mine\r\n[Terrafold]\r\n" + Lines);
    }
    static std::string List() {
        return DerApt[0] + "|" + DerApt[1] + "|" + DerApt[2] + "|" + DerApt[3];
    }

private:
    // No simulator on this computer, whatever it holds.
    Environment_Scope Named_{"TERRAFOLD_FSDIR"};
    Environment_Scope Wine_{"WINEPREFIX", Dir.Native("no wine").string()};
};

TEST_F(Settings, ValuesAndTheirDefaults) {
    Language = Dir_Texture = "??";
    Read_Settings();
    EXPECT_EQ(Language, "FR");
    EXPECT_EQ(Fl1Fois + ShowVTP1L, 0);
    EXPECT_EQ(DirFS + Dir_Texture + DerRefLu + List(), "|||");
    EXPECT_FALSE(Dir.Has("App/Resource/Terrafold.Ini")) << "reading writes nothing";
    Dir.Write("FS/file", "");
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
    EXPECT_EQ(Host_Of_Test.Caption["Mnu_File_Prec(1)"], "b.LWM");
}

TEST_F(Settings, TheGridsColourIsKept) {
    for (const auto& [Kept, Index] : {std::pair{"7", 7}, {"0", 0}, {"8", 2}, {"-1", 2}, {"x", 0}}) {
        Ini(std::string("GridColour=") + Kept + "\r\n");
        Read_View_Settings();
        EXPECT_EQ(Grid_Colour_Index, Index) << Kept;
        EXPECT_EQ(Grid_Colour, Grid_Colours[static_cast<std::size_t>(Index)]);
    }
}

TEST_F(Settings, TheSimulatorIsLookedForAndKept) {
    Dir.Write("Sim/Scenery/world.txt", "");
    Dir.Write("Empty/file.txt", "");
    Ini("DirFS=" + Dir.Path("gone") + "\\\r\n");
    {
        const Environment_Scope Named("TERRAFOLD_FSDIR", Dir.Native("Empty").string());
        Read_Settings();
        EXPECT_EQ(DirFS + Dir_Texture, "") << "no directory Scenery in it";
    }
    const Environment_Scope Named("TERRAFOLD_FSDIR", Dir.Native("Sim").string());
    Read_Settings();
    EXPECT_EQ(DirFS, Dir.Path("Sim") + "\\");
    EXPECT_EQ(Dir_Texture, Dir.Path("Sim") + "\\Scenery\\world\\Texture");
    EXPECT_EQ(Setting_Read(Ini_File, "Terrafold", "DirFS", ""), DirFS);
    Ini("DirFS=" + Dir.Path("Empty") + "\\\r\n");
    Read_Settings();
    EXPECT_EQ(DirFS, Dir.Path("Empty") + "\\") << "what the user has set stays";
}

TEST_F(Settings, RecentProjects) {
    Ini("");
    Expect_Rows(
        "recent",
        {{"Recent_Update", [&](const Row_Cells& C) {
              for (std::size_t I = 0; I < 4; ++I) DerApt[I] = C[I];
              // An entry may be handed in itself.
              const bool Entry = C[5].size() == 1;
              const std::string_view Path = Entry ? std::string_view(DerApt[C[5][0] - '1']) : C[5];
              Recent_Update(Path, C[4] == "add" ? 1 : 2);
              const std::string After = List();
              for (std::size_t I = 0; I < 4 && After != C[0] + "|" + C[1] + "|" + C[2] + "|" + C[3];
                   ++I)
                  EXPECT_EQ(Host_Of_Test.Caption["Mnu_File_Prec(" + std::to_string(I) + ")"],
                            DerApt[I]);
              return After;
          }}});
    const std::string Last = List();
    DerApt = {};
    Read_Settings();
    EXPECT_EQ(List(), Last) << "it comes back at the next start";
    EXPECT_TRUE(Dir.Read("App/Resource/Terrafold.Ini").starts_with("; mine\r\n"))
        << "what others wrote stays";
}
