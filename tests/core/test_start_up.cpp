// tests/core/test_start_up.cpp - from the start of the program to its first look.
#include "core/lifecycle.h"
#include "core/model_ops.h"
#include "core/project_file.h"
#include "core/view_calls.h"
#include "platform/instance_lock.h"
#include "support/environment.h"
#include "support/program_test.h"

class Start_Up : public Program_Test {
protected:
    // A program that has been started before; its lock and its settings are the test's own.
    Start_Up() { Confirmed("1"); }
    ~Start_Up() override { Program_End(); }

    void Confirmed(const std::string& Fl1Fois_Kept) {
        Dir.Write("App/Resource/Terrafold.Ini",
                  "[Terrafold]\r\nLanguage=US\r\nFl1Fois=" + Fl1Fois_Kept + "\r\n");
    }
    bool Start(std::string_view Command_Line = "") {
        return Program_Start(Command_Line, Dir.Path("App"));
    }
    std::string Make_Project(const std::string& Name) {
        Nom_Projet = Dir.Path(Name);
        Projet_Open = 1;
        EXPECT_TRUE(Save_Project(0, {}));
        Projet_Open = 0;
        return Dir.Path(Name);
    }

private:
    Environment_Scope Run_Dir_{"XDG_RUNTIME_DIR", Dir.Native().string()};
    Environment_Scope Named_{"TERRAFOLD_FSDIR"};
    Environment_Scope Wine_{"WINEPREFIX", Dir.Native("no wine").string()};
};

TEST_F(Start_Up, AnEmptyProgramReadyForWork) {
    Nom_Projet = "old";
    Obj_Add({}, 1.0, 2.0);
    Tile_Size = Grid_Colour = Grid_Colour_Index = 7;
    std::string Calls;
    The_View.Apply_Language = [&] { Calls += "Apply_Language:" + Language + " "; };
    The_View.Window_Show = [&] { Calls += "Window_Show "; };
    The_View.Route_Reset = [&] { Calls += "Route_Reset "; };
    The_View.View_Reset = [&] { Calls += "View_Reset "; };
    EXPECT_TRUE(Start());
    EXPECT_EQ(Calls, "Apply_Language:US Window_Show Route_Reset View_Reset ");
    EXPECT_TRUE(Host_Of_Test.Events.empty());
    EXPECT_EQ(Host_Of_Test.Caption["Frm"], "Terrafold V5.0 04/10/2003");
    EXPECT_FALSE(Host_Of_Test.Enabled.at("Cmd_Save"));
    EXPECT_EQ(Nom_Projet, "");
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Tile_Size, 2000);
    EXPECT_EQ(Grid_Colour, 0xC0C0C0);
    EXPECT_EQ(Grid_Colour_Index, 2);
    EXPECT_EQ(Ini_File, Dir.Path("App") + "\\Resource\\Terrafold.Ini");
    EXPECT_EQ(Msg_File, Dir.Path("App") + "\\Resource\\FicErr.txt");
}

TEST_F(Start_Up, AFinalBackslashOfTheDirectoryIsDropped) {
    Set_App_Path("C:\\Terrafold\\");
    EXPECT_EQ(App_Path, "C:\\Terrafold");
    Set_App_Path(App_Path);
    EXPECT_EQ(Ini_File, "C:\\Terrafold\\Resource\\Terrafold.Ini");
}

TEST_F(Start_Up, ASecondInstanceEnds) {
    {
        Instance_Lock Other;
        ASSERT_TRUE(Other.Take());
        EXPECT_FALSE(Start());
        EXPECT_EQ(Host_Of_Test.Events,
                  (std::vector<std::string>{"message 0 This program is already running"}));
        EXPECT_EQ(Language, "FR") << "nothing was read";
    }
    EXPECT_TRUE(Start()) << "the other one has ended";
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
    Confirmed("0");
    int Asked = 0;
    Host_Of_Test.Forms["Frm_PGen"] = [&] {
        if (++Asked < 3) return Form_End::Closed;
        Fl1Fois = 1;
        return Form_End::Ok;
    };
    EXPECT_TRUE(Start());
    EXPECT_EQ(Asked, 3);
    Program_End();
    Confirmed("1");
    EXPECT_TRUE(Start());
    EXPECT_EQ(Asked, 3) << "never again";
}

TEST_F(Start_Up, AHostWithoutTheDialogGoesOn) {
    Confirmed("0");
    EXPECT_TRUE(Start());
    EXPECT_EQ(Host_Of_Test.Events, (std::vector<std::string>{"form Frm_PGen"}));
}

TEST_F(Start_Up, CommandLines) {
    Dir.Write("my scenery.LWM", "");
    Dir.Write("my scenery.LW", "");
    const std::string Path = Dir.Path("my scenery.LWM");
    EXPECT_EQ(Command_Line_File("  \"" + Path + "\" "), Path);
    EXPECT_EQ(Command_Line_File(" " + Path + " "), Path) << "blanks need no quotes";
    EXPECT_EQ(Command_Line_File("\"" + Path), "") << "no closing quote";
    EXPECT_EQ(Command_Line_File(Path + "\""), "");
    EXPECT_EQ(Command_Line_File(Dir.Path("other.LWM")), "") << "no such file";
    EXPECT_EQ(Command_Line_File(Dir.Path()), "") << "a directory";
    for (const char* Short : {"", "  ", "\"", "\"\"", "ab", "\"a\""})
        EXPECT_EQ(Command_Line_File(Short), "") << Short;
}

TEST_F(Start_Up, TheProjectOfTheCommandLineIsOpened) {
    const std::string Path = Make_Project("my scenery.LWM");
    Confirmed("0");
    Host_Of_Test.Forms["Frm_PGen"] = [] {
        EXPECT_EQ(Projet_Open, 0) << "parameters come first";
        Fl1Fois = 1;
        return Form_End::Ok;
    };
    EXPECT_TRUE(Start("\"" + Path + "\""));
    EXPECT_EQ(Cmd_File, Path);
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Nom_Projet, Path);
    EXPECT_EQ(Host_Of_Test.Caption["Frm"], "Terrafold V5.0 04/10/2003  " + Path);
    EXPECT_EQ(DerApt[0], Path);
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
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
        EXPECT_EQ(P.Zero, 0) << I;
    }
    Program_End();
    Dir.Write("App/Fs5.pal", Bytes.substr(1));
    EXPECT_TRUE(Start()) << "a palette of another size is no reason to end";
    EXPECT_EQ(Pal_Fs5[200].Red, 200) << "greys stand in";
    EXPECT_TRUE(Host_Of_Test.Boxes.empty()) << "and nothing is said of it yet";
}
