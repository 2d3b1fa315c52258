// tests/gen/test_emit_night_lines.cpp - sources of road lights and the files they become.
#include "gen/emit_night_lines.h"

#include "emit_test.h"
#include "support/golden.h"

namespace {

constexpr char Source_Name[] = "TmpRt.Sca";

class Night_Test : public Emit_Test {
protected:
    static Attr Road(Int LineType = 1134) {
        Attr A;
        A.SurfShore = 2;
        A.Line_Night = 1;
        A.LineType = LineType;
        A.FermerLine = 0;
        return A;
    }
    // Roads in three Areas, in the order that their files come in.
    static void Draw_Three_Areas() {
        Draw({{100, 100}, {500, 100}}, Road());
        Draw({{Area_Px + 100, 100}, {Area_Px + 500, 100}}, Road());
        Draw({{100, Area_Px + 100}, {500, Area_Px + 100}}, Road());
    }
    // A compiler that leaves Made, and fails to start at run Missing.
    void Compile_With(const std::string& Made, int Missing = 0) {
        Host_Of_Test.Tool = [this, Made, Missing](std::string_view) {
            if (++Runs_ == Missing) return false;
            if (!Made.empty()) Dir.Write("App/Tmp.Bgl", Made);
            return true;
        };
    }

private:
    int Runs_ = 0;
};

TEST_F(Night_Test, TheWholeSource) {
    Attr A = Road(1142);  // four lanes, parted
    Draw({{200, 300}, {600, 300}, {600, 700}}, A);
    A.Drive_Right = 0;
    A.LineType = 1158;
    Draw({{200, 400}, {600, 500}}, A);  // same square and layer: comes before the first
    A.LayerScasm = 8;
    A.LineType = 1024;  // one lane
    Draw({{100, 200}, {400, 900}, {900, 950}}, A);
    Draw({{2100, 100}, {2500, 100}}, Road(1024));  // next square
    Night_Lines_Generate();
    EXPECT_TRUE(Equals_Golden("night.sca", Source(Source_Name)));
    EXPECT_EQ(Host_Of_Test.Stages, (Lines{"LCompileNom=Night Lines", "LCompile=BGLC.exe"}));
}

TEST_F(Night_Test, EachAreaIsAFileOfItsOwn) {
    Draw_Three_Areas();
    Put_Tool("scasm.exe", "same $3 -l\ncopy $1 $2\n");
    Night_Lines_Generate();
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
    EXPECT_EQ(Dir.Read("Out_9003.bgl"), Source(Source_Name));
    const std::string North_West = Dir.Read("Out_9001.bgl"), North_East = Dir.Read("Out_9002.bgl");
    EXPECT_NE(North_West, North_East);
    EXPECT_EQ(North_West.substr(0, North_West.find('\r')),
              "Header( 1 72.521875 71.970312 -132.55625 -133.225 )");
    EXPECT_FALSE(Has_Source("Tmp.Bgl"));
    const std::string Text = App_Path + "\\TmpRt.Sca", Made = App_Path + "\\Tmp.Bgl";
    EXPECT_EQ(Lines(Host_Of_Test.Events.begin(), Host_Of_Test.Events.begin() + 4),
              (Lines{"write " + Text,
                     "run " + App_Path + "\\scasm.exe \"" + Text + "\" \"" + Made + "\" -l",
                     "write " + Dir.Path("Out_9001.bgl"), "delete " + Made}));
}

TEST_F(Night_Test, TheNumberOfAFailureIsSkipped) {
    Draw_Three_Areas();
    Compile_With("lights", 2);
    Night_Lines_Generate();
    EXPECT_TRUE(Dir.Has("Out_9001.bgl"));
    EXPECT_FALSE(Dir.Has("Out_9002.bgl"));
    EXPECT_TRUE(Dir.Has("Out_9003.bgl"));
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 2U);
    EXPECT_EQ(Host_Of_Test.Boxes[1].Text, "error during Scasm generation");
}

TEST_F(Night_Test, ACompilerThatLeavesNothing) {
    Draw({{100, 100}, {500, 100}}, Road());
    Dir.Write("App/Tmp.Bgl", "of an earlier run");
    Compile_With("");
    Night_Lines_Generate();
    EXPECT_FALSE(Dir.Has("Out_9001.bgl"));
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Night_Test, AnOutputThatCannotBeWritten) {
    Draw_Three_Areas();
    Dir.Write("Out_9001.bgl/in the way", "");
    Compile_With("lights");
    Night_Lines_Generate();
    ASSERT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_NE(Host_Of_Test.Boxes[0].Text.find("Out_9001.bgl"), std::string::npos);
    EXPECT_TRUE(Dir.Has("Out_9002.bgl"));
}

TEST_F(Night_Test, WhichLinesShine) {
    Attr Dark = Road(), Surface = Road();
    Dark.Line_Night = 0;
    Surface.SurfShore = 0;
    Draw({{100, 100}, {500, 100}}, Dark);
    Draw(Square(100, 100, 400), Surface);
    Draw({{100, 100}, {100, 100}}, Road());  // no length
    Night_Lines_Generate();
    EXPECT_FALSE(Has_Source(Source_Name));
    Attr Fan = Road(), Coast = Road(1024);
    Fan.Vtp1_Line = 1;
    Coast.SurfShore = 3;
    Coast.FermerLine = 1;
    Draw({{100, 200}, {500, 200}}, Fan);
    Draw(Square(100, 300, 400), Coast);
    Night_Lines_Generate();
    EXPECT_EQ(Lines_With(Source_Name, "RRStart").size(), 3U);
    EXPECT_EQ(Lines_With(Source_Name, "RoadCont").size(), 2U + 3U) << "a coastline stays open";
}

TEST_F(Night_Test, ARingGoesBackToItsStartWhicheverSideTheLandIs) {
    Attr Ring = Road(1024);
    Ring.FermerLine = 1;
    Draw(Square(100, 100, 400), Ring);
    Night_Lines_Generate();
    const std::string Text = Source(Source_Name);
    const Lines First = Lines_With(Source_Name, "RRStart"), Next = Lines_With(Source_Name, "Cont");
    ASSERT_EQ(Next.size(), 4U);
    EXPECT_EQ(First[0].substr(First[0].find("( 2 2 ") + 6), Next[3].substr(10));
    Tab_Obj[First_Obj].Attr.LandOnRight = 1;
    Night_Lines_Generate();
    EXPECT_EQ(Source(Source_Name), Text);
}

TEST_F(Night_Test, CutAlongHalfSquares) {
    Draw({{100, 100}, {3100, 100}}, Road(1024));
    Night_Lines_Generate();
    EXPECT_EQ(Lines_With(Source_Name, "Area( B ").size(), 2U);
    const Lines Starts = Lines_With(Source_Name, "RRStart"), Ends = Lines_With(Source_Name, "Cont");
    ASSERT_EQ(Starts.size(), 4U) << "cut at 1020, 2040 and 3060";
    // In the first square, pieces stand one behind the other against the order drawn; equals are
    // turned round. So the piece in front begins where the one behind it ends.
    EXPECT_EQ(Ends[0].substr(10), Starts[1].substr(13));
    EXPECT_NE(Ends[1].substr(10), Starts[2].substr(13)) << "each square counts from its centre";
}

TEST_F(Night_Test, AMapThatCannotServe) {
    Draw({{100, 100}, {500, 100}}, Road());
    Spoil_Calibration();
    Night_Lines_Generate();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 7);
    EXPECT_FALSE(Has_Source(Source_Name));
}

}  // namespace
