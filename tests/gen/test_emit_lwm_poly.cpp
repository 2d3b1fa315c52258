// tests/gen/test_emit_lwm_poly.cpp - mask sources, byte by byte, and when they are compiled.
#include "gen/emit_lwm_poly.h"

#include "emit_test.h"
#include "support/golden.h"

namespace {

constexpr char Source_Name[] = "Terrafold$_Poly_LWM.asm";

class Emit_LWM_Poly_Test : public Emit_Test {
protected:
    static Area Cell_Record(const Cell_Pos& Cell, Byte Attrib) {
        Area A;
        static_cast<Cell_Pos&>(A) = Cell;
        A.Attrib = Attrib;
        return A;
    }
    std::string Run_Event() const {
        return "run " + App_Path + "\\bglc.exe  \"" + App_Path + "\\" + Source_Name + "\" \"" +
               Dir.Path("Out_3.bgl") + "\"";
    }
};

// Fills of all kinds, a lake over four Cells with an island, and a coast under a polygon.
void Fill_Project(Attr& Lake, Attr& Coast) {
    Tab_Lod8.Append({.AreaLon = 101, .AreaLat = 51, .Attrib = 2});
    Tab_Lod8.Append({.AreaLon = 100, .AreaLat = 50, .Attrib = 1});
    Tab_Lod8.Append({.AreaLon = 101, .AreaLat = 51, .Attrib = 0});
    Lake.Text_Rt = "Lac L\xE9man";
    Lake.Alti = 372.25;
    Coast.SurfShore = 3;
    Coast.Vtp1_Line = 1;  // no shore line beside the surface
    Coast.Alt_Coast = -1.5;
    Coast.Text_Rt = "shore";
}

TEST_F(Emit_LWM_Poly_Test, FillsCoastsAndPolygons) {
    Attr Lake, Island, Coast;
    Fill_Project(Lake, Coast);
    Island.Attrib = 1;
    const Double X = 4 * Cell_Px, Y = 6 * Cell_Px;  // a corner of four Cells
    Draw(Square(X - 100, Y - 100, 200), Lake);
    Draw({{X + 20, Y + 20}, {X + 50, Y + 20}, {X + 20, Y + 60}}, Island);
    Tab_Area.Append(Cell_Record({100, 50, 9, 6}, 0));
    Tab_Area.Append(Cell_Record({100, 50, 9, 6}, 1));  // the first record of a Cell counts
    Tab_Area[1].Alti = 123.25;
    Tab_Area.Append(Cell_Record({100, 50, 8, 6}, 1));
    Tab_Area.Append(Cell_Record({101, 50, 31, 0}, 2));
    Tab_Area.Append(Cell_Record({100, 50, 4, 6}, 0));
    Tab_Area[5].Fill1x1 = 0;
    Tab_Area[5].InvertMask = 1;
    Tab_Area[5].InvertMaskValue = 0;
    Draw({{X + 26, Y + Cell_Px}, {X + 130, Y + 100}, {X + 204, Y + Cell_Px}}, Coast);
    Dir.Write("Out_3.bgl", "old");
    Emit_LWM_Poly();
    EXPECT_TRUE(Equals_Golden("lwm_mask.asm", Source(Source_Name)));
    EXPECT_EQ(Host_Of_Test.Events, (Lines{"write " + App_Path + "\\" + Source_Name,
                                          "delete " + Dir.Path("Out_3.bgl"), Run_Event()}));
    EXPECT_EQ(Host_Of_Test.Stages[0], "LCompileNom=" + Dir.Path("Out_3.bgl"));
    EXPECT_EQ(Host_Of_Test.Stages[1], "LCompile=Coastlines");
    EXPECT_EQ(std::ranges::count(Host_Of_Test.Stages, "LCompile=LWM Polygons : BGLC.exe"), 1);
    EXPECT_EQ(Nb_CPoly + Nb_CPt + Nb_CCoast + Nb_CCoastPt, 0);
}

TEST_F(Emit_LWM_Poly_Test, WithoutDataNothingIsCompiled) {
    Emit_LWM_Poly();
    EXPECT_EQ(Lines_With(Source_Name, "LWMIndexHeader"),
              (Lines{"         LWMIndexHeader 0,LWMIndexData"}));
    Tab_Lod8.Append({.AreaLon = 101, .AreaLat = 51, .Attrib = 1});
    Emit_LWM_Poly();
    EXPECT_FALSE(Happened("run"));
    EXPECT_EQ(Lines_With(Source_Name, "Cell_"),
              (Lines{"    Cell_101_51    EQU    LWMCellID 0,0,1,101,51",
                     "        LWMIndexEntry   Cell_101_51,LWMStart,LWMStart,LWMStart"}));
    EXPECT_EQ(Lines_With(Source_Name, "datamark_"),
              (Lines{"    datamark_0  label   word", "    datamark_1  label   word"}));
}

TEST_F(Emit_LWM_Poly_Test, ListsAndPolygonsHaveLongForms) {
    Attr A;
    A.Alti = 8.0;
    for (int I = 0; I < 6; ++I) Add_Piece(Tab_CPoly, Tab_CPt, {100, 50, 1, 2}, 62, A);
    for (int I = 0; I < 7; ++I) Add_Piece(Tab_CPoly, Tab_CPt, {100, 50, 2, 2}, 63, A);
    Emit_LWM_Poly();
    EXPECT_EQ(Lines_With(Source_Name, "DrawPolygons"),
              (Lines{"        LWMDataAreaDrawPolygons 6,3,1,1,2",
                     "        LWMDataAreaDrawPolygonsEx 7,3,1,2,2,0"}));
    Lines Wanted(6, "          LWMPoly2   62,0,0,8,0");
    Wanted.insert(Wanted.end(), 7, "          LWMPoly2Ex 63,0,0,8,0,0");
    EXPECT_EQ(Lines_With(Source_Name, "LWMPoly"), Wanted);
    EXPECT_EQ(Lines_With(Source_Name, "LWMPoint").size(), 6U * 62 + 7 * 63);
}

TEST_F(Emit_LWM_Poly_Test, TheOtherSimulatorHasNoHeights) {
    FS_CFS = 1;
    Attr A;
    Add_Piece(Tab_CPoly, Tab_CPt, {100, 50, 1, 2}, 63, A);
    Add_Piece(Tab_CPoly, Tab_CPt, {100, 50, 1, 2}, 62, A);
    Tab_Area.Append(Cell_Record({100, 50, 1, 2}, 2));
    Emit_LWM_Poly();
    EXPECT_EQ(Host_Of_Test.Events[0], "message 0 LWM poly/CFS : more than 62 points");
    EXPECT_EQ(Host_Of_Test.Boxes.size(), 1U);
    EXPECT_EQ(Lines_With(Source_Name, "LWMPoly1"),
              (Lines{"          LWMPoly1 63,0,0", "          LWMPoly1 62,0,0"}));
    EXPECT_EQ(Lines_With(Source_Name, "LWMFileHeader"),
              (Lines{"    LWMFileHeader 256, LWMIndexStart, LWMStart, LWMEnd"}));
    EXPECT_TRUE(Lines_With(Source_Name, "Height").empty());
    EXPECT_EQ(Lines_With(Source_Name, "LWMPoint").size(), 125U);
}

TEST_F(Emit_LWM_Poly_Test, RefusedPolygonsLeaveTheRest) {
    Draw({{10, 10}, {90, 90}, {90, 10}, {10, 90}}, Attr{});  // crosses itself
    Draw(Square(300, 300, 50), Attr{});
    Tab_Area.Append(Cell_Record({100, 50, 9, 6}, 1));
    Emit_LWM_Poly();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 121);
    EXPECT_TRUE(Lines_With(Source_Name, "LWMPoly").empty());
    EXPECT_EQ(Lines_With(Source_Name, "Fill"),
              (Lines{"      LWMDataAreaFill1x1        0,1,1,9,6"}));
    EXPECT_TRUE(Happened("run"));
}

TEST_F(Emit_LWM_Poly_Test, ACalibrationThatCannotServe) {
    Spoil_Calibration();
    Attr Textured, Line;
    Textured.LWM_VTP2 = 1;
    Line.SurfShore = 2;
    Line.Vtp1_Line = 1;
    Draw(Square(10, 10, 50), Textured);
    Draw({{10, 10}, {20, 30}}, Line);
    Tab_Area.Append(Cell_Record({100, 50, 9, 6}, 1));
    Emit_LWM_Poly();
    EXPECT_EQ(Host_Of_Test.Last_Message(), -1) << "fills need no map";
    EXPECT_TRUE(Happened("run"));
    Host_Of_Test.Events.clear();
    for (const Int Surf : {0, 3}) {
        SCOPED_TRACE(Surf);
        Attr Converted;
        Converted.SurfShore = Surf;
        Init_Tables();
        Host_Of_Test.Events.clear();
        Draw(Square(10, 10, 50), Converted);
        Emit_LWM_Poly();
        EXPECT_EQ(Host_Of_Test.Last_Message(), 7);
        EXPECT_EQ(Host_Of_Test.Events.size(), 1U);
    }
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
}

TEST_F(Emit_LWM_Poly_Test, FailuresAreTold) {
    Draw(Square(10, 10, 50), Attr{});
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    Emit_LWM_Poly();
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "pb Terrafold generation 2");
    EXPECT_TRUE(Has_Source(Source_Name));
    std::filesystem::remove(Dir.Native(std::string("App/") + Source_Name));
    Dir.Write(std::string("App/") + Source_Name + "/in the way", "");
    Host_Of_Test.Events.clear();
    Emit_LWM_Poly();
    EXPECT_FALSE(Happened("run")) << "a source that cannot be made is not compiled";
    EXPECT_EQ(Nb_CPoly, 0);
}

}  // namespace
