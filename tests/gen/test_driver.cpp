// tests/gen/test_driver.cpp - checks, deletions and tools of a whole generation.
#include "gen/driver.h"

#include "core/view_calls.h"
#include "emit_test.h"

namespace {

class Driver_Test : public Gen_Test {
protected:
    static void Exclude_Something() {
        Excl E;
        E.Chk_Excl[1] = 1;
        Tab_Excl.Append(E);
    }
    // A polygon from (10, 10) to (20, 20) linked to a texture of that rectangle.
    static void Link_Polygon() {
        Ima M;
        M.X1 = M.Y1 = 10;
        M.X2 = M.Y2 = 20;
        Attr A;
        A.LWM_VTP2 = 2;
        A.VTP1_SpecNor = 0;
        A.Link_Ima = Tab_Ima[Ima_Add(M)].Num;
        const Long I = Obj_Add(A, 10, 10);
        Pt_Append(I, 20, 10);
        Pt_Append(I, 20, 20);
    }
    // The paths that were deleted, in order.
    std::vector<std::string> Deleted() const {
        const std::string Verb = "delete ";
        std::vector<std::string> Paths;
        for (const std::string& Event : Host_Of_Test.Events)
            if (Event.rfind(Verb, 0) == 0) Paths.push_back(Event.substr(Verb.size()));
        return Paths;
    }
};

TEST_F(Driver_Test, OlderOutputsGoByTheirNamesAlone) {
    NameBgl = Dir.Path("Out[1].bgl");
    for (const char* Name : {"Excl.bgl", "Out[1]_3.bgl", "OUT[1]_9001.BGL", "Out[1]_x.y.bgl"})
        Dir.Write(Name, "older");
    const std::vector<std::string> Stay = {"Out[1].bgl",  "Out[1]_3.bgl.txt", "Out1_3.bgl",
                                           "Out[1]3.bgl", "Out[1]_3.asm",     "Other_3.bgl"};
    for (const std::string& Name : Stay) Dir.Write(Name, "not ours");
    Dir.Write("Out[1]_dir.bgl/file", "");
    Cmd_API();
    EXPECT_EQ(Deleted(),
              (std::vector<std::string>{Dir.Path("Excl.bgl"), Dir.Path("Out[1]_3.bgl"),
                                        Dir.Path("OUT[1]_9001.BGL"), Dir.Path("Out[1]_x.y.bgl")}));
    for (const std::string& Name : Stay) EXPECT_TRUE(Dir.Has(Name)) << Name;
    EXPECT_TRUE(Dir.Has("Out[1]_dir.bgl/file"));
}

TEST_F(Driver_Test, NamesAreNoPatterns) {
    NameBgl = Dir.Path("*.bgl");
    NameBglExcl = Dir.Path("*.bgl");
    Dir.Write("a_3.bgl", "not ours");
    Cmd_API();
    NameBgl.clear();
    NameBglExcl.clear();
    Cmd_API();
    EXPECT_TRUE(Dir.Has("a_3.bgl"));
    EXPECT_EQ(Deleted(), std::vector<std::string>{App_Path + "\\Terrafold$_Poly_LWM.asm"})
        << "the source of the first run, and nothing else";
}

TEST_F(Driver_Test, ToolsPresentMissingAndFailing) {
    Exclude_Something();
    const std::string Source = "write " + App_Path + "\\Terrafold$_Excl.ASM";
    Put_Tool("bglc.exe", "copy $1 $2\nexit 3\n");
    Cmd_API();
    EXPECT_TRUE(Host_Of_Test.Boxes.empty()) << "the exit status of a tool is not looked at";
    EXPECT_EQ(Dir.Read("Excl.bgl"), this->Source("Terrafold$_Excl.ASM"));

    std::filesystem::remove(Dir.Native("App/bglc.exe"));
    Host_Of_Test.Events.clear();
    Cmd_API();
    EXPECT_FALSE(Dir.Has("Excl.bgl")) << "the older output is gone all the same";
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 2U);
    EXPECT_EQ(Host_Of_Test.Boxes[0].Style, Box_Information);
    EXPECT_EQ(Host_Of_Test.Boxes[1].Text, "BGLC.exe not found");
    EXPECT_TRUE(Has_Source("Terrafold$_Excl.ASM")) << "the source stays";
}

TEST_F(Driver_Test, ALinkedPolygonMustStayInsideItsTexture) {
    Link_Polygon();
    Dir.Write("Excl.bgl", "older");
    int Cleared = 0;
    The_View.Ima_Clear = [&] { ++Cleared; };
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "points on the edges are inside";
    EXPECT_EQ(Cleared, 1);
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Cross);
    for (const auto& [X, Y] : {std::pair{9.99, 15.0}, {20.01, 15.0}, {15.0, 9.99}, {15.0, 20.01}}) {
        Tab_Pt[3].X = X;
        Tab_Pt[3].Y = Y;
        Host_Of_Test.Boxes.clear();
        Cmd_API();
        EXPECT_EQ(Poly_Out_Of_Tex, 1);
        ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
        EXPECT_EQ(Host_Of_Test.Last_Message(), 130);
    }
    EXPECT_EQ(Cleared, 1);
    EXPECT_TRUE(Dir.Has("Excl.bgl")) << "nothing is deleted";

    Tab_Obj[2].Attr.SurfShore = 2;
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "a line is not tested";
    Tab_Obj[2].Attr.SurfShore = 1;
    Ima_Delete(1);
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "deleting the texture cleared the link";
}

// Numbers are unique in what the program makes, not in what it may be given to read.
TEST_F(Driver_Test, EveryTextureOfTheNumberIsTested) {
    Link_Polygon();
    Ima Other = Tab_Ima[1];
    Other.Num = 2;
    Other.X2 = 15;
    Tab_Ima.Append(Other);
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "another number";
    Other.Num = 1;
    Other.Active = 0;
    Tab_Ima.Append(Other);
    Tab_Ima.Append(Tab_Ima[1]);
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 1) << "the first and the last have room, the third has not";
    Tab_Obj.Truncate(1);
    Tex_Link_Check();
    EXPECT_EQ(Poly_Out_Of_Tex, 0) << "without objects";
}

TEST_F(Driver_Test, ClosingAProjectLeavesTheModeByTheCheck) {
    Link_Polygon();
    Tab_Pt[1].X = 0;
    Call(The_View.Mode_Leave);
    EXPECT_EQ(Poly_Out_Of_Tex, 1);
}

TEST_F(Driver_Test, ASpecialPolygonNeedsALink) {
    Exclude_Something();
    for (int I = 0; I < 2; ++I) {
        Link_Polygon();
        Tab_Obj[Nb_Obj].Attr.Link_Ima = 0;
    }
    Attr& First = Tab_Obj[2].Attr;
    Attr& Second = Tab_Obj[3].Attr;
    First.SurfShore = 3;      // a coastline
    Second.VTP1_SpecNor = 1;  // a normal polygon
    Cmd_API();
    for (const Box& B : Host_Of_Test.Boxes) EXPECT_NE(B.Num, 131) << "neither needs one";

    Host_Of_Test.Boxes.clear();
    First.SurfShore = Second.VTP1_SpecNor = 0;
    Dir.Write("Excl.bgl", "older");
    std::filesystem::remove(Dir.Native("App/Terrafold$_Excl.ASM"));
    Cmd_API();
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U) << "only the first is reported";
    EXPECT_EQ(Host_Of_Test.Last_Message(), 131);
    EXPECT_TRUE(Dir.Has("Excl.bgl"));
    EXPECT_FALSE(Has_Source("Terrafold$_Excl.ASM"));
}

// A project with something for each of its emitters.
class Order_Test : public Emit_Test {
protected:
    Order_Test() {
        Tab_Excl.Append({});
        Tab_Excl[1].Chk_Excl[1] = 1;
        Tab_PtGrid.Append({.Active = 1, .X = 50, .Y = 50, .Alt = 10});
        Attr A;
        Draw(Square(100, 100, 40), A);
        A.LWM_VTP2 = 1;
        Draw(Square(300, 300, 40), A);
    }
    // What the tools are to make, in order.
    Lines Outputs() const {
        Lines Names;
        for (const std::string& Event : Host_Of_Test.Events)
            if (Event.starts_with("run ")) Names.push_back(Event.substr(Event.rfind('\\') + 1));
        return Names;
    }
};

TEST_F(Order_Test, EmittersRunInTheirOrder) {
    Cmd_API();
    EXPECT_EQ(Outputs(), (Lines{"Excl.bgl\"", "Out_2.bgl\"", "Out_3.bgl\"", "Out_5.bgl\""}));
    Host_Of_Test.Events.clear();
    FS_CFS = 1;
    Cmd_API();
    EXPECT_EQ(Outputs(), (Lines{"Excl.bgl\"", "Out_3.bgl\""})) << "what the other simulator knows";
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Order_Test, ClassesBeforeTexturedPolygonsAndLightsLast) {
    Tab_LC.Append({});
    Tab_WC.Append({});
    Dir_LCWC = Dir.Path();
    Attr Road;
    Road.SurfShore = 2;
    Road.Line_Night = 1;
    Draw({{100, 100}, {500, 100}}, Road);
    Cmd_API();
    EXPECT_EQ(Outputs(),
              (Lines{"Excl.bgl\"", "Out_2.bgl\"", "Out_3.bgl\"", "Out_9.bgl\"", "TmpLC.Inf\"",
                     "LWCcompress.tmf\"", "LC_000_000.bgl", "TmpWC.Inf\"", "LWCcompress.tmf\"",
                     "WC_000_000.bgl", "Out_5.bgl\"", "Tmp.Bgl\" -l"}));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Order_Test, TheRunGoesOnWithoutItsTools) {
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    Cmd_API();
    Lines Texts;
    for (const Box& B : Host_Of_Test.Boxes)
        if (B.Style == Box_Ok) Texts.push_back(B.Text);
    EXPECT_EQ(Texts, (Lines{"BGLC.exe not found", "pb Terrafold generation Re_meshLWM",
                            "pb Terrafold generation 2", "BGLC.exe not found"}));
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 8U) << "each behind the box of its tool";
}

TEST_F(Driver_Test, TheFormShowsThatItWorks) {
    std::vector<std::string> Order;
    The_View.Route_Leave = [&] { Order.push_back("leave"); };
    The_View.View_Redraw = [&] { Order.push_back("redraw"); };
    Host_Of_Test.Tool = [&](std::string_view) {
        Order.push_back("tool");
        EXPECT_TRUE(Host_Of_Test.Visible["Fram_Compile"]);
        return true;
    };
    Exclude_Something();
    Cmd_API();
    EXPECT_EQ(Order, (std::vector<std::string>{"leave", "redraw", "tool"}));
    EXPECT_FALSE(Host_Of_Test.Visible["Fram_Compile"]);
    EXPECT_FALSE(Host_Of_Test.Visible["LPtGrid"]);
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
    EXPECT_EQ(Host_Of_Test.Stages.front(), "LCompileNom=");
}

}  // namespace
