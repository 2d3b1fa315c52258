// tests/gen/test_driver.cpp - what a generation does with tools, older outputs and the form.
#include "gen/driver.h"

#include "core/view_calls.h"
#include "core/work.h"
#include "gen/emit_classes.h"
#include "gen/emit_night_lines.h"
#include "gen/generation_host.h"
#include "gen/outputs.h"
#include "gen/restore_outputs.h"
#include "gen_test.h"

namespace {

class Driver_Test : public Gen_Test {
protected:
    static void Exclude_Something() {
        Excl E;
        E.Chk_Excl[1] = 1;
        Tab_Excl.Append(E);
    }
};

TEST_F(Driver_Test, NamesAreNoPatterns) {
    for (const char* Name : {"*.bgl", "Out[1].bgl", ""}) {
        NameBgl = NameBglExcl = *Name == '\0' ? "" : Dir.Path(Name);
        for (const char* Other : {"a_3.bgl", "Out1_3.bgl"}) Dir.Write(Other, "not ours");
        Dir.Write("Out[1]_3.bgl", "older");
        Cmd_API();
        EXPECT_TRUE(Dir.Has("a_3.bgl") && Dir.Has("Out1_3.bgl")) << Name;
        EXPECT_EQ(Dir.Has("Out[1]_3.bgl"), *Name != 'O') << Name;
    }
}

TEST_F(Driver_Test, ThePartsOfAProjectAreNoOutputsOfIt) {
    Exclude_Something();
    Nom_Projet = Dir.Path("p.bgl");
    Carte = Dir.Path("map.bgl");
    Ima M;
    M.DirFic = Dir.Path("tex.bgl");
    Tab_Ima.Append(M);
    std::error_code Without_Links;
    std::filesystem::create_directory_symlink(Dir.Native(), Dir.Native("here"), Without_Links);
    for (const char* Name : {"p.bgl", "here/p.bgl", "map.bgl", "tex.bgl", "notes.txt"}) {
        const bool Is_Linked = std::string_view(Name) == "here/p.bgl";
        if (Is_Linked && Without_Links) continue;  // a system that makes none
        Dir.Write(Name, "mine");
        NameBglExcl = Dir.Path(Name);
        Host_Of_Test = {};
        Host_Of_Test.Tool = [](std::string_view) { return true; };
        Cmd_API();
        EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U) << Name;
        EXPECT_FALSE(Has_Source("Terrafold$_Excl.ASM")) << "the output is passed over";
        EXPECT_EQ(Dir.Read(Name), "mine");
    }
    NameBglExcl = Dir.Path("link.bgl");
    std::filesystem::create_symlink("p.bgl", Dir.Native("link.bgl"), Without_Links);
    Cmd_API();
    EXPECT_FALSE(Dir.Has("link.bgl")) << "the link goes";
    EXPECT_EQ(Dir.Read("p.bgl"), "mine") << "not what it leads to";
}

TEST_F(Driver_Test, ToolsForReal) {
    Make_Map(64);
    Exclude_Something();
    Put_Tool("bglc.exe", "copy $1 $2\nexit 3\n");
    Put_Tool("ResampleV11.exe", "need $1\ncopy Temp/FicRaw.Raw Temp/landclass.tmf\n");
    Put_Tool("tmfcompress.exe", "copy $1 $2\n");
    Put_Tool("tmf2bgl.exe", "copy $1 $2\n");
    Put_Tool("scasm.exe", "same $3 -l\ncopy $1 $2\n");
    Dir.Write("My Classes/LC_048_032.bgl", "older");
    Dir_LCWC = Dir.Path("My Classes");
    LC_Cell Class;
    Class.AreaLon = 384;
    Class.AreaLat = 256;
    Tab_LC.Append(Class);
    Attr Road;
    Road.SurfShore = Surf_Line;
    Road.Line_Night = 1;
    for (const Double X : {100.0, 8260.0, 16420.0}) Draw({{X, 100}, {X + 400, 100}}, Road);
    Dir.Write("Out_9002.bgl/in the way", "");
    Cmd_API();
    EXPECT_EQ(Dir.Read("Excl.bgl"), Source("Terrafold$_Excl.ASM")) << "whatever the exit status";
    EXPECT_EQ(Dir.Read("My Classes/LC_048_032.bgl").size(), 257U * 257U);
    EXPECT_FALSE(Has_Source("Temp/landclass.tmf") || Has_Source("Temp/LWCcompress.tmf"));
    EXPECT_EQ(Dir.Read("Out_9003.bgl"), Source("TmpRt.Sca"));
    EXPECT_EQ(Dir.Read("Out_9001.bgl").substr(0, 9), "Header( 1");
    EXPECT_FALSE(Has_Source("Tmp.Bgl"));
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U) << "a directory stands where an output goes";
    EXPECT_NE(Host_Of_Test.Boxes[0].Text.find("Out_9002.bgl"), std::string::npos);
    EXPECT_EQ(Host_Of_Test.Boxes[0].Style, Box_Ok);
}

TEST_F(Driver_Test, WhatWasThereComesBack) {
    Exclude_Something();
    Put_Tool("bglc.exe", "copy $1 $2\n");
    Put_Tool("ResampleV11.exe", "");
    Put_Tool("tmfcompress.exe", "");
    Put_Tool("tmf2bgl.exe", "");
    Tab_LC.Append({});
    for (const char* Name : {"Excl.bgl", "Out_3.bgl", "Classes/LC_000_000.bgl"})
        Dir.Write(Name, "former");
    Cmd_API();
    const std::string Made = Source("Terrafold$_Excl.ASM");
    EXPECT_EQ(Host_Of_Test.Events.back(), "missing " + Dir.Path("Classes\\LC_000_000.bgl"));
    EXPECT_EQ(Output_Facts().back().State, Output_State::Missing);
    EXPECT_EQ(Dir.Read("Classes/LC_000_000.bgl"), "former") << "no tool has made another";
    EXPECT_TRUE(Dir.Read("Excl.bgl") == Made && !Dir.Has("Out_3.bgl"));
    Restore_Outputs();
    EXPECT_TRUE(Dir.Read("Excl.bgl") == "former" && Dir.Read("Out_3.bgl") == "former");
    Restore_Outputs();
    EXPECT_TRUE(Dir.Read("Excl.bgl") == Made && !Dir.Has("Out_3.bgl"));
    Put_Tool("bglc.exe", "");
    for (int Times = 0; Times < 2; ++Times) Cmd_API();
    EXPECT_FALSE(Dir.Has("Excl.bgl"));
    Restore_Outputs();
    EXPECT_EQ(Dir.Read("Excl.bgl"), Made) << "kept for as long as there is no other";
    Restore_Outputs();
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U) << "nothing is kept any more";
}

TEST_F(Driver_Test, WhatNeedsAMissingToolStays) {
    Make_Map(64);
    Exclude_Something();
    Put_Tool("scasm.exe", "copy $1 $2\n");
    Attr Road;
    Road.SurfShore = Surf_Line;
    Road.Line_Night = 1;
    Draw({{100, 100}, {500, 100}}, Road);
    for (const char* Name : {"Excl.bgl", "Out_3.bgl", "Out_9001.bgl"}) Dir.Write(Name, "older");
    Generation_Plan Plan;
    for (const Tool_Choice Choice : {Tool_Choice::Stop, Tool_Choice::Without_Missing}) {
        Plan.On_Missing = [&](const std::vector<std::string>& Missing) {
            EXPECT_EQ(Missing, std::vector{App_Path + "\\bglc.exe"});
            return Choice;
        };
        EXPECT_EQ(Generation_Run(Plan), Choice != Tool_Choice::Stop);
        EXPECT_EQ(Dir.Read("Out_9001.bgl") == "older", Choice == Tool_Choice::Stop);
        EXPECT_TRUE(Dir.Read("Excl.bgl") == "older" && Dir.Read("Out_3.bgl") == "older");
    }
    ASSERT_EQ(The_Report.Outputs.size(), 1U);
    EXPECT_EQ(The_Report.Outputs[0].Found.value().Size, Dir.Read("Out_9001.bgl").size());
}

TEST_F(Driver_Test, TheUserEndsAToolAndWhatWouldFollow) {
    Exclude_Something();
    Tab_Area.Append({});
    Host_Of_Test.Tool = [&](std::string_view) {
        Dir.Write("Excl.bgl", "half of it");
        Work_Cancel();
        Tool_End();
        return true;
    };
    Cmd_API();
    EXPECT_TRUE(The_Report.Was_Cancelled);
    EXPECT_EQ(The_Report.Outputs.at(0).State, Output_State::Ended);
    EXPECT_FALSE(Dir.Has("Excl.bgl") || Has_Source("Terrafold$_Poly_LWM.asm"));
    EXPECT_FALSE(Host_Of_Test.Visible["Fram_Compile"]);
    Host_Of_Test.Tool = nullptr;
    Dir.Write("Out_3.bgl", "former");
    Outputs_Begin();
    EXPECT_TRUE(Bgl_Set_Aside(Dir.Path("Out_3.bgl")) && !Dir.Has("Out_3.bgl"));
    Outputs_End();
    EXPECT_EQ(Dir.Read("Out_3.bgl"), "former") << "no tool has come to it";
}

// A polygon from (10, 10) to (20, 20) linked to textures of one number: numbers are unique in what
// the program makes, not in what it may be given to read.
TEST_F(Driver_Test, EveryTextureOfTheNumberIsTested) {
    Attr A;
    A.LWM_VTP2 = Technique_VTP1;
    A.Link_Ima = 1;
    Draw({{10, 10}, {20, 10}, {20, 20}}, A);
    int Cleared = 0;
    The_View.Ima_Clear = [&] { ++Cleared; };
    const auto Outside = [](const Ima& M) {
        Tab_Ima.Append(M);
        Tex_Link_Check();
        return Poly_Out_Of_Tex != 0;
    };
    Ima M;
    M.Num = 1;
    M.X1 = M.Y1 = 10;
    M.X2 = M.Y2 = 20;
    EXPECT_FALSE(Outside(M)) << "points on the edges are inside";
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Cross);
    EXPECT_EQ(Cleared, 1);
    M.X2 = 19.99;
    M.Num = 2;
    EXPECT_FALSE(Outside(M)) << "another number";
    for (Double Ima::*Edge : {&Ima::X1, &Ima::Y1, &Ima::X2, &Ima::Y2}) {
        M = Tab_Ima[1];
        M.Active = 0;
        M.*Edge += Edge == &Ima::X1 || Edge == &Ima::Y1 ? 0.01 : -0.01;
        EXPECT_TRUE(Outside(M));
        EXPECT_EQ(Host_Of_Test.Last_Message(), 130);
        Tab_Ima.Truncate(2);
    }
    EXPECT_TRUE(Outside(M));
    Tab_Obj.Edit(First_Obj).Attr.SurfShore = Surf_Line;
    Call(The_View.Mode_Leave);
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "a line is not tested";
    Tab_Obj.Edit(First_Obj).Attr.SurfShore = Surf_Polygon;
    Ima_Delete(1);
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "deleting the texture cleared the link";
}

TEST_F(Driver_Test, TheFormShowsThatItWorks) {
    std::string Order;
    The_View.Route_Leave = [&] { Order += "leave "; };
    The_View.View_Redraw = [&] { Order += "redraw "; };
    Host_Of_Test.Tool = [&](std::string_view) {
        Order += "tool ";
        EXPECT_TRUE(Host_Of_Test.Visible["Fram_Compile"]);
        return true;
    };
    Exclude_Something();
    Cmd_API();
    EXPECT_EQ(Order, "leave redraw tool ");
    EXPECT_FALSE(Host_Of_Test.Visible["Fram_Compile"]);
    EXPECT_FALSE(Host_Of_Test.Visible["LPtGrid"]);
    EXPECT_EQ(Host_Of_Test.Stages.front(), "LCompileNom=");
}

}  // namespace
