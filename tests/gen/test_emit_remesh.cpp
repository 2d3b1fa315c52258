// tests/gen/test_emit_remesh.cpp - altitude samples in a source, byte by byte.
#include "gen/emit_remesh.h"

#include "core/model_ops.h"
#include "emit_test.h"
#include "support/golden.h"

namespace {

constexpr char Source_Name[] = "Terrafold$_Remesh_LWM.asm";

class Emit_Remesh_Test : public Emit_Test {};

TEST_F(Emit_Remesh_Test, SamplesAreSortedIntoAreasCellsAndRows) {
    Delta_Alt = 2.0F;
    PtGrid_Add(Area_Px + 30, 40, 5.25F);          // the Area in the east
    PtGrid_Add(10, Area_Px + 3 * Cell_Px, 7.0F);  // the Area in the south, on a Cell's north edge
    PtGrid_Add(200, 90, -5.5F);
    PtGrid_Add(100, 90, 1.0F);
    PtGrid_Add(100, 20, 0.0F);
    PtGrid_Add(100, 20, 9.0F);
    PtGrid_Add(50, 50, 4.0F);
    PtGrid_Delete(7);
    PtGrid_Add(10, Cell_Px + 10, 3.0F);
    Emit_Remesh();
    EXPECT_TRUE(Equals_Golden("remesh.asm", Source(Source_Name)));
    EXPECT_EQ(Host_Of_Test.Events,
              (Lines{"write " + App_Path + "\\" + Source_Name,
                     "run " + App_Path + "\\bglc.exe  \"" + App_Path + "\\" + Source_Name +
                         "\" \"" + Dir.Path("Out_2.bgl") + "\""}));
    EXPECT_EQ(Host_Of_Test.Stages,
              (Lines{"LCompileNom=" + Dir.Path("Out_2.bgl"), "LCompile=Re_Mesh : BGLC.exe"}));
}

TEST_F(Emit_Remesh_Test, LongListsAreDivided) {
    for (int I = 0; I < 254; ++I) PtGrid_Add(1 + I % 200, 1 + I / 200, 0.0F);
    for (int I = 0; I < 7; ++I) PtGrid_Add(Cell_Px + 1 + I, 1, 0.0F);
    Emit_Remesh();
    EXPECT_EQ(Lines_With(Source_Name, "DrawPolygons"),
              (Lines{"        LWMDataAreaDrawPolygonsEx 7,3,1,0,0,246",
                     "        LWMDataAreaDrawPolygons 1,3,1,0,0",
                     "        LWMDataAreaDrawPolygonsEx 7,3,1,1,0,0"}));
    EXPECT_EQ(Lines_With(Source_Name, "LWMPoint").size(), 2U * 261);
}

TEST_F(Emit_Remesh_Test, FeetTakeNoDelta) {
    Meter_Feet = 1;
    Delta_Alt = 50.0F;
    PtGrid_Add(1, 1, 328.084F);
    Emit_Remesh();
    EXPECT_EQ(Lines_With(Source_Name, "LWMPoly2"), (Lines{"          LWMPoly2   2,0,1,100,0"}));
}

TEST_F(Emit_Remesh_Test, WhatCannotBeDoneIsTold) {
    Spoil_Calibration();
    PtGrid_Add(1, 1, 1.0F);
    PtGrid_Delete(1);
    Emit_Remesh();
    EXPECT_TRUE(Host_Of_Test.Events.empty() && Host_Of_Test.Stages.empty())
        << "a deleted sample is nothing to convert";
    PtGrid_Add(1, 1, 1.0F);
    Emit_Remesh();
    EXPECT_EQ(Host_Of_Test.Last_Message(), 7);
    EXPECT_FALSE(Has_Source(Source_Name));
    Spoil_Calibration();  // back in order
    Host_Of_Test.Tool = [](std::string_view) { return false; };
    Emit_Remesh();
    EXPECT_EQ(Host_Of_Test.Boxes.back().Text, "pb Terrafold generation Re_meshLWM");
    EXPECT_EQ(Host_Of_Test.Pointer, Pointer_Shape::Normal);
}

}  // namespace
