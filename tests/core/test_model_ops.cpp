// tests/core/test_model_ops.cpp - adding, changing and deleting what a project holds.
#include "core/model_ops.h"

#include <random>
#include <vector>

#include "support/program_test.h"

using Model_Ops = Program_Test;

namespace {

// The columns of an object's points from its first to its last, and an error in the links as -1.
std::vector<Double> Columns(Long I) {
    const Obj& O = Tab_Obj[I];
    std::vector<Double> X;
    Long Before = 0;
    for (Long P = O.First_Pt, N = 0; N < O.Nb_Pts; Before = P, P = Tab_Pt[P].Next, ++N)
        X.push_back(Tab_Pt[P].Prev == Before ? Tab_Pt[P].X : -1.0);
    if (Before != O.Last_Pt || Tab_Pt[Before].Next != 0) X.push_back(-1.0);
    return X;
}

Long Row_Of(Long I, std::size_t Place) {
    Long P = Tab_Obj[I].First_Pt;
    for (; Place > 0; --Place) P = Tab_Pt[P].Next;
    return P;
}

}  // namespace

TEST_F(Model_Ops, PointsJoinAndLeaveAnywhere) {
    std::mt19937_64 Source(1);
    Obj_Add({}, 7.0, 0.0);
    Obj_Add({}, 0.0, 0.0);
    std::vector<Double> Plain = {0.0};
    for (int Step = 1; Step < 2000; ++Step) {
        const std::size_t At = Source() % Plain.size(), Act = Source() % 6;
        const auto Place = Plain.begin() + static_cast<std::ptrdiff_t>(At);
        if (Act == 0) Pt_Append(3, Step, 0.0), Plain.push_back(Step);
        if (Act == 1) Pt_Prepend(3, Step, 0.0), Plain.insert(Plain.begin(), Step);
        if (Act == 2) Pt_Insert(3, Row_Of(3, At), Step, 0.0), Plain.insert(Place + 1, Step);
        if (Act > 2 && Plain.size() > 1) Pt_Delete(3, Row_Of(3, At)), Plain.erase(Place);
        ASSERT_EQ(Columns(3), Plain) << Step;
        ASSERT_EQ(Tab_Obj[3].Nb_Pts, static_cast<Long>(Plain.size()));
    }
    EXPECT_EQ(Columns(2), std::vector<Double>{7.0});
    EXPECT_TRUE(Host_Of_Test.Boxes.empty());
}

TEST_F(Model_Ops, TheLastPointTakesItsObjectAfterAQuestion) {
    Obj_Add({}, 1.0, 0.0);
    Obj_Add({}, 7.0, 0.0);
    Host_Of_Test.Box_Answers = {Button_No, Button_Yes};
    EXPECT_FALSE(Pt_Delete(2, 1));
    EXPECT_EQ(Columns(2), std::vector<Double>{1.0});
    EXPECT_TRUE(Pt_Delete(2, 1));
    EXPECT_EQ(Host_Of_Test.Last_Message(), 20);
    EXPECT_EQ(Nb_Obj, 2);
    EXPECT_EQ(Columns(2), std::vector<Double>{7.0});
}

TEST_F(Model_Ops, NumbersAreNeverGivenTwice) {
    Obj_Add({}, 0.0, 0.0);
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

TEST_F(Model_Ops, InitTablesKeepsTheHead) {
    Obj_Add({}, 1.0, 0.0);
    Ima_Add({});
    Carte = "C:\\map.bmp";
    LatPtNW = 48.5;
    LodMesh = 4;
    Mesh_Done = Dialog_Up = 1;
    Cur_Attr.Text_Rt = "left over";
    Init_Tables();
    EXPECT_EQ(Carte, "C:\\map.bmp");
    EXPECT_EQ(LatPtNW, 48.5);
    EXPECT_EQ(Nb_Obj, 1);
    EXPECT_EQ(Tab_Obj[1].Attr, Attr_Zero());
    EXPECT_EQ(Nb_Pt + Nb_Ima + Mesh_Done + Dialog_Up + Last_Num_Obj, 0);
    EXPECT_EQ(LodMesh, 2);
    Model_Reset();
    EXPECT_EQ(The_Head, Project_Head());
    EXPECT_EQ(The_Calibration, Calibration());
    EXPECT_EQ(Cur_Attr, Attr());
}

TEST_F(Model_Ops, TheFirstRecordOfASquareCounts) {
    using Cells = std::vector<LC_Cell>;
    const auto Rows = [] { return Cells{Tab_LC.Rows().begin(), Tab_LC.Rows().end()}; };
    const LC_Cell A{{5, 0, 0, 0}, 1}, B{{5, 0, 0, 1}, 2}, Again{{5, 0, 0, 0}, 3},
        Odd{{-1, 0, 0, 0}, 4}, New{{9, 0, 0, 0}, 8}, Other{{5, 0, 0, 0}, 9};
    for (const LC_Cell& C : {A, B, Again, Odd}) Tab_LC.Append(C);
    Squares_Store<LC_Cell>(Tab_LC, Cells{New, Other});
    EXPECT_EQ(Rows(), (Cells{Other, B, Again, Odd, New}));
    Squares_Delete<LC_Cell, LC_Cell>(Tab_LC, Cells{A, New, {{7, 7, 7, 7}, 0}});
    EXPECT_EQ(Rows(), (Cells{B, Again, Odd}));
    for (const Double Alti : {0.0, 100.0})
        Squares_Store<Lod8>(Tab_Lod8, std::vector<Lod8>{{0, 3, 0, Alti}});
    ASSERT_EQ(Nb_Lod8, 1);
    EXPECT_EQ(Tab_Lod8[1].Alti, 100.0);
}

TEST_F(Model_Ops, DeletingATextureFreesItsObjects) {
    EXPECT_EQ(Ima_Add({}), 1);
    EXPECT_EQ(Ima_Add({}), 2);
    Attr Other, Linked;
    Other.Link_Ima = 1, Linked.Link_Ima = 2;
    Other.LWM_VTP2 = Linked.LWM_VTP2 = 2;
    Other.VTP1_SpecNor = Linked.VTP1_SpecNor = 0;
    Obj_Add(Linked, 0.0, 0.0);
    Obj_Add(Other, 0.0, 0.0);
    Ima_Delete(2);
    EXPECT_EQ(Tab_Obj[2].Attr, Attr());
    EXPECT_EQ(Tab_Obj[3].Attr, Other);
    EXPECT_EQ(Nb_Ima, 2);
    EXPECT_EQ(Tab_Ima[2].Active, 0);
    EXPECT_EQ(Tab_Ima[Ima_Add({})].Num, 3) << "above that of the deleted one";
    Tab_Ima.Edit(1).Num = std::numeric_limits<Int>::max();
    EXPECT_EQ(Tab_Ima[Ima_Add({})].Num, 1) << "a free one, once the highest is taken";
}
