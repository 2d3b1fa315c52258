// tests/core/test_model_ops.cpp - adding, changing and deleting what a project holds.
#include "core/model_ops.h"

#include <vector>

#include "support/program_test.h"

namespace {

// The columns of an object's points from its first to its last, and an error in the links as -1.
std::vector<Double> Columns(Long I) {
    const Obj& O = Tab_Obj[I];
    std::vector<Double> X;
    Long Before = 0;
    for (Long P = O.First_Pt, N = 0; N < O.Nb_Pts; Before = P, P = Tab_Pt[P].Next, ++N) {
        X.push_back(Tab_Pt[P].Prev == Before ? Tab_Pt[P].X : -1.0);
        if (N + 1 == O.Nb_Pts && (P != O.Last_Pt || Tab_Pt[P].Next != 0)) X.push_back(-1.0);
    }
    return X;
}

using List = std::vector<Double>;

class Model_Ops : public Program_Test {
protected:
    // Object 2 with points at columns 1 to Nb.
    void Make_Obj(int Nb) {
        Obj_Add({}, 1.0, 0.0);
        for (int N = 2; N <= Nb; ++N) Pt_Append(2, N, 0.0);
    }
};

}  // namespace

TEST_F(Model_Ops, InitTablesKeepsTheHead) {
    Make_Obj(30);
    Carte = "C:\\map.bmp";
    LatPtNW = 48.5;
    LodMesh = 4;
    Mesh_Done = 1;
    Dialog_Up = 1;
    The_Edits.Last_Alt_Set = true;
    Ima_Add({});
    Init_Tables();
    EXPECT_EQ(Carte, "C:\\map.bmp");
    EXPECT_EQ(LatPtNW, 48.5);
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Tab_Obj[1].Attr, Attr_Zero());
    EXPECT_EQ(Tab_Obj[1].First_Pt, 0);
    EXPECT_EQ(Nb_Pt + Nb_Area + Nb_Lod8 + Nb_Excl + Nb_LC + Nb_WC + Nb_Ima + Nb_PtGrid, 0);
    EXPECT_EQ(Max_Obj, 10);
    EXPECT_EQ(Max_Pt, 5);
    EXPECT_EQ(Last_Num_Obj, 0);
    EXPECT_EQ(LodMesh, 2);
    EXPECT_EQ(Mesh_Done, 0);
    EXPECT_EQ(Dialog_Up, 0);
    EXPECT_FALSE(The_Edits.Last_Alt_Set);
}

TEST_F(Model_Ops, ModelResetLeavesNothing) {
    Carte = "C:\\map.bmp";
    LatPtNW = 48.5;
    Cur_Attr.Text_Rt = "left over";
    Model_Reset();
    EXPECT_EQ(The_Head, Project_Head());
    EXPECT_EQ(The_Calibration, Calibration());
    EXPECT_EQ(Cur_Attr, Attr());
}

TEST_F(Model_Ops, PointsJoinAtBothEndsAndBetween) {
    Make_Obj(2);
    EXPECT_EQ(Pt_Prepend(2, 0.0, 0.0), 3);
    Pt_Insert(2, Tab_Obj[2].First_Pt, 0.5, 0.0);
    Pt_Insert(2, Tab_Obj[2].Last_Pt, 2.5, 0.0);
    EXPECT_EQ(Columns(2), (List{0.0, 0.5, 1.0, 2.0, 2.5}));
    EXPECT_EQ(Tab_Obj[2].Nb_Pts, 5);
}

TEST_F(Model_Ops, PointsLeaveFromAnyPlace) {
    Make_Obj(5);
    EXPECT_TRUE(Pt_Delete(2, 3));
    EXPECT_EQ(Columns(2), (List{1.0, 2.0, 4.0, 5.0}));
    EXPECT_TRUE(Pt_Delete(2, 1));
    EXPECT_TRUE(Pt_Delete(2, 5));
    EXPECT_EQ(Columns(2), (List{2.0, 4.0}));
    EXPECT_EQ(Nb_Pt, 5) << "the pool keeps its holes";
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Model_Ops, TheLastPointTakesItsObjectAfterAQuestion) {
    Make_Obj(1);
    Obj_Add({}, 7.0, 0.0);
    Host_Of_Test.Box_Answers = {Button_No, Button_Yes};
    EXPECT_FALSE(Pt_Delete(2, 1));
    EXPECT_EQ(Columns(2), (List{1.0}));
    EXPECT_TRUE(Pt_Delete(2, 1));
    EXPECT_EQ(Host_Of_Test.Last_Message(), 20);
    EXPECT_EQ(Nb_Obj, 2);
    EXPECT_EQ(Columns(2), (List{7.0}));
    EXPECT_EQ(Nb_Pt, 2);
}

TEST_F(Model_Ops, NumbersAreNeverGivenTwice) {
    Make_Obj(1);
    Obj_Add({}, 0.0, 0.0);
    Obj_Delete(3);
    EXPECT_EQ(Tab_Obj[Obj_Add({}, 0.0, 0.0)].Num, 3);
    Last_Num_Obj = std::numeric_limits<Long>::max();
    const Long Objects = Nb_Obj, Points = Nb_Pt;
    EXPECT_EQ(Obj_Add({}, 0.0, 0.0), 0) << "no number is left";
    EXPECT_EQ(Nb_Obj, Objects);
    EXPECT_EQ(Nb_Pt, Points);
    EXPECT_DEATH(Obj_Delete(1), "never deleted");
}

TEST_F(Model_Ops, ACellHasOneRecord) {
    LC_Cell C;
    C.AreaLon = 5;
    C.Num = 1;
    EXPECT_EQ(Cell_Store(Tab_LC, C), 1);
    C.CellLat = 1;
    EXPECT_EQ(Cell_Store(Tab_LC, C), 2);
    C.CellLat = 0;
    C.Num = 9;
    EXPECT_EQ(Cell_Store(Tab_LC, C), 1);
    EXPECT_EQ(Nb_LC, 2);
    EXPECT_EQ(Tab_LC[1].Num, 9);
    EXPECT_EQ(Cell_Find(Tab_LC, {5, 0, 0, 2}), 0);

    Lod8 L;
    L.AreaLat = 3;
    Lod8_Store(L);
    L.Alti = 100.0;
    EXPECT_EQ(Lod8_Store(L), 1);
    EXPECT_EQ(Tab_Lod8[1].Alti, 100.0);
    EXPECT_EQ(Lod8_Find(3, 0), 0);
}

TEST_F(Model_Ops, DeletingATextureFreesItsObjects) {
    EXPECT_EQ(Ima_Add({}), 1);
    EXPECT_EQ(Ima_Add({}), 2);
    Attr A;
    A.LWM_VTP2 = 2;
    A.VTP1_SpecNor = 0;
    A.Link_Ima = 2;
    Obj_Add(A, 0.0, 0.0);
    A.Link_Ima = 1;
    Obj_Add(A, 0.0, 0.0);
    Ima_Delete(2);
    EXPECT_EQ(Tab_Obj[2].Attr.Link_Ima, 0);
    EXPECT_EQ(Tab_Obj[2].Attr.LWM_VTP2, 0);
    EXPECT_EQ(Tab_Obj[2].Attr.VTP1_SpecNor, 1);
    EXPECT_EQ(Tab_Obj[3].Attr, A);
    EXPECT_EQ(Nb_Ima, 2);
    EXPECT_EQ(Tab_Ima[2].Active, 0);
    EXPECT_EQ(Tab_Ima[Ima_Add({})].Num, 3) << "above that of the deleted one";
    Tab_Ima[1].Num = std::numeric_limits<Int>::max();
    EXPECT_EQ(Ima_Add({}), 0) << "no number is left";
}
