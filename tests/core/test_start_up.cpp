// tests/core/test_start_up.cpp - from the start of the program to its first look.
#include "core/lifecycle.h"
#include "core/model.h"
#include "core/project_file.h"
#include "core/view_calls.h"
#include "platform/instance_door.h"
#include "platform/instance_lock.h"
#include "platform/paths.h"
#include "support/environment.h"
#include "support/program_test.h"

class Start_Up : public Program_Test {
protected:
    // A program that has been started before; its settings are the test's own.
    Start_Up() { Confirmed("1"); }
    ~Start_Up() override { Program_End(); }

    void Confirmed(const std::string& Fl1Fois_Kept) {
        Dir.Write("App/Resource/Terrafold.Ini",
                  "[Terrafold]\r\nLanguage=US\r\nFl1Fois=" + Fl1Fois_Kept + "\r\n");
    }
    bool Start(std::string_view Command_Line = "") {
        return Program_Start(Command_Line, Dir.Path("App\\")) == Start_Outcome::Started;
    }

private:
    Environment_Scope Named_{"TERRAFOLD_FSDIR"};
    Environment_Scope Wine_{"WINEPREFIX", Dir.Native("no wine").string()};
};

TEST_F(Start_Up, ASecondInstanceEnds) {
    {
        Instance_Lock Other;
        ASSERT_TRUE(Other.Take());
        EXPECT_FALSE(Start());
        EXPECT_EQ(Host_Of_Test.Events,
                  (std::vector<std::string>{"message 0 This program is already running"}));
        EXPECT_EQ(Language, "FR") << "nothing was read";
        Dir.Write("given.LWM", "");
        Instance_Door Door;
        EXPECT_EQ(Program_Start(Dir.Path("given.LWM"), Dir.Path("App")),
                  Start_Outcome::Handed_Over);
        EXPECT_EQ(Door.Take(), Dir.Path("given.LWM"));
        EXPECT_EQ(Host_Of_Test.Events.size(), 1U) << "no message";
    }
    EXPECT_TRUE(Start()) << "the other one has ended";
    EXPECT_EQ(Ini_File, Dir.Path("App") + "\\Resource\\Terrafold.Ini");
    Instance_Lock Other;
    EXPECT_FALSE(Other.Take());
    EXPECT_TRUE(Mnu_File_Quit());
    EXPECT_TRUE(Other.Take()) << "let go at the end of the program";
}

TEST_F(Start_Up, ADisplayThatCannotServeEndsTheProgram) {
    Host_Of_Test.Screen.Bits_Per_Pixel = 4;
    EXPECT_FALSE(Start());
    EXPECT_EQ(Host_Of_Test.Last_Message(), 23);
    Host_Of_Test.Screen = {.Bits_Per_Pixel = 8, .Has_Raster = false};
    EXPECT_FALSE(Start());
    EXPECT_EQ(Host_Of_Test.Last_Message(), 24);
    EXPECT_EQ(Language, "FR") << "the settings were not read";
    Instance_Lock Other;
    EXPECT_TRUE(Other.Take()) << "an ended program holds no lock";
}

TEST_F(Start_Up, TheFirstStartAsksUntilTheParametersAreConfirmed) {
    Nom_Projet = Dir.Path("my scenery.LWM");
    Projet_Open = 1;
    ASSERT_TRUE(Save_Project(0, {}));
    const std::string Path = std::exchange(Nom_Projet, "old");
    Projet_Open = 0;
    Confirmed("0");
    int Asked = 0;
    Host_Of_Test.Forms["Frm_PGen"] = [&] {
        EXPECT_EQ(Projet_Open, 0) << "parameters come first";
        if (++Asked < 3) return Form_End::Closed;
        Fl1Fois = 1;
        return Form_End::Ok;
    };
    EXPECT_TRUE(Start("\"" + Path + "\""));
    EXPECT_EQ(Asked, 3);
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Nom_Projet, Path);
    EXPECT_EQ(Host_Of_Test.Caption["Frm"], "Terrafold V5.0 04/10/2003  " + Shown_Path(Path));
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    Program_End();
    Confirmed("0");
    Host_Of_Test.Forms.clear();
    EXPECT_TRUE(Start()) << "a host without the dialog goes on";
    EXPECT_EQ(Nom_Projet, "");
}

TEST_F(Start_Up, CommandLines) {
    Dir.Write("my scenery.LWM", "");
    Dir.Write("my scenery.LW", "");
    const std::string Path = Dir.Path("my scenery.LWM");
    EXPECT_EQ(Command_Line_File("  \"" + Path + "\" "), Path);
    EXPECT_EQ(Command_Line_File(" " + Path + " "), Path) << "blanks need no quotes";
    EXPECT_EQ(Command_Line_File("\"" + Path), "") << "no closing quote";
    EXPECT_EQ(Command_Line_File(Dir.Path("other.LWM")), "") << "no such file";
    EXPECT_EQ(Command_Line_File(Dir.Path()), "") << "a directory";
    for (const char* Short : {"", "  ", "\"", "\"\"", "ab", "\"a\""})
        EXPECT_EQ(Command_Line_File(Short), "") << Short;
}

TEST_F(Start_Up, ThePaletteIsReadInTheOrderOfABitmap) {
    std::string Bytes;
    for (int I = 0; I < 768; ++I) Bytes += static_cast<char>(I % 251);
    Dir.Write("App/Fs5.pal", Bytes);
    EXPECT_TRUE(Start());
    for (const int I : {0, 1, 255}) {
        const Palette_Entry& P = Pal_Fs5[static_cast<std::size_t>(I)];
        EXPECT_EQ(P.Red, 3 * I % 251) << I;
        EXPECT_EQ(P.Green, (3 * I + 1) % 251) << I;
        EXPECT_EQ(P.Blue, (3 * I + 2) % 251) << I;
    }
    Program_End();
    Dir.Write("App/Fs5.pal", Bytes.substr(1));
    EXPECT_TRUE(Start()) << "a palette of another size is no reason to end";
    EXPECT_EQ(Pal_Fs5[255].Red, 255) << "greys";
}

TEST_F(Start_Up, TilesOfAKilledProgramAreTakenAway) {
    const std::vector<std::string> Tiles = {"App/Temp/$$$_00.bmp", "App/Temp/$$$_110.bmp"};
    for (const std::string& Tile : Tiles) Dir.Write(Tile, "");
    Dir.Write("App/Temp/map.bmp", "");
    {
        Instance_Lock Other;
        ASSERT_TRUE(Other.Take());
        EXPECT_FALSE(Start());
        EXPECT_TRUE(Dir.Has(Tiles[0])) << "the other one's";
    }
    EXPECT_EQ(Program_Start("", Dir.Path("App"), {.Alone = false}), Start_Outcome::Started);
    EXPECT_TRUE(Dir.Has(Tiles[0])) << "perhaps another one's";
    Program_End();
    EXPECT_TRUE(Start());
    for (const std::string& Tile : Tiles) EXPECT_FALSE(Dir.Has(Tile)) << Tile;
    EXPECT_TRUE(Dir.Has("App/Temp/map.bmp"));
}
