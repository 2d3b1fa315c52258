// tests/ui/test_view_objects.cpp - drawn objects on the canvas, and what of them is left out.
#include <algorithm>
#include <cmath>
#include <random>

#include "core/model_ops.h"
#include "core/program.h"
#include "core/project_file.h"
#include "ui/canvas/objects_draw.h"
#include "ui/canvas/view.h"
#include "ui_support/small_project.h"
#include "ui_support/view_test.h"

namespace {

constexpr Pen Backdrop{.Colour = 0xFF0000, .Width = 2};

class View_Objects : public View_Test {
protected:
    using Points = std::vector<std::pair<Double, Double>>;

    static Long Add(const Points& P) {
        const Long I = Obj_Add({}, P[0].first, P[0].second);
        for (std::size_t K = 1; K < P.size(); ++K) Pt_Append(I, P[K].first, P[K].second);
        return I;
    }
    std::vector<Line_Px> Draw() {
        Canvas.Ops.clear();
        Objects_Draw_Backdrop();
        EXPECT_EQ(Canvas.Lines_With(Backdrop).size(), Canvas.Ops.size());
        return Canvas.Lines_With(Backdrop);
    }
};

using Lines = std::vector<Line_Px>;

TEST_F(View_Objects, SegmentsInTheOrderOfTheTable) {
    Add({{10.0, 10.0}, {50.5, 10.0}, {51.5, 60.4}});
    Add({{100.0, 100.0}});
    Add({{20.0, 30.0}, {20.0, 30.0}});
    EXPECT_EQ(Draw(), (Lines{{10, 10, 50, 10}, {50, 10, 52, 60}, {20, 30, 20, 30}}));
    Zoom = 2.0;
    View_Center_On_Point({.X = 150.5 / 2.0, .Y = 125.5 / 2.0});
    EXPECT_EQ(Draw(), (Lines{{20, 20, 101, 20}, {101, 20, 103, 121}, {40, 60, 40, 60}}));
}

TEST_F(View_Objects, APenForEach) {
    Add({{10.0, 10.0}, {50.0, 10.0}});
    const Long Second = Add({{10.0, 20.0}, {50.0, 20.0}});
    Objects_Draw([Second](Long I) -> std::optional<Pen> {
        if (I != Second) return std::nullopt;
        return Pen{.Colour = 0x00FF00};
    });
    EXPECT_EQ(Canvas.Ops, (std::vector{Line_Op({10, 20, 50, 20}, {.Colour = 0x00FF00})}));
}

TEST_F(View_Objects, OneByItselfBeItAPoint) {
    Add({{10.0, 10.0}, {50.0, 10.0}});
    const Long Point = Add({{100.0, 60.0}});
    const Pen Green{.Colour = 0x00FF00};
    const Lines Block{{99, 59, 101, 59}, {99, 60, 101, 60}, {99, 61, 101, 61}};
    Object_Paint(Point, Green);
    EXPECT_EQ(Canvas.Lines_With(Green), Block);
    Objects_Draw([](Long) { return Backdrop; }, Single_Points::As_Blocks);
    EXPECT_EQ(Canvas.Lines_With(Backdrop).size(), 4U);
}

// Whether a line of width 2 reaches the canvas, told from many places of it.
bool Reaches_Canvas(const Line_Px& L, Double Margin) {
    constexpr int Places = 4000;
    for (int I = 0; I <= Places; ++I) {
        const Double T = static_cast<Double>(I) / Places;
        const Double X = L.X1 + T * (L.X2 - L.X1), Y = L.Y1 + T * (L.Y2 - L.Y1);
        if (-Margin <= X && X <= 300 + Margin && -Margin <= Y && Y <= 250 + Margin) return true;
    }
    return false;
}

TEST_F(View_Objects, OnlySegmentsThatReachTheCanvasArePainted) {
    std::mt19937 Random(5);
    std::uniform_int_distribution<int> X(-400, 700), Y(-400, 650);
    Lines All;
    for (int I = 0; I < 400; ++I) {
        const Line_Px L{X(Random), Y(Random), X(Random), Y(Random)};
        Add({{L.X1, L.Y1}, {L.X2, L.Y2}});
        All.push_back(L);
    }
    const Lines Painted = Draw();
    auto Next = Painted.begin();
    for (const Line_Px& L : All) {
        const bool Is_Painted = Next != Painted.end() && *Next == L;
        if (Is_Painted) ++Next;
        if (Is_Painted)
            EXPECT_TRUE(Reaches_Canvas(L, 1.5)) << L;
        else
            EXPECT_FALSE(Reaches_Canvas(L, 1.0)) << L;
    }
    EXPECT_EQ(Next, Painted.end()) << "in order, and nothing else";
    EXPECT_GT(Painted.size(), 20U);
    EXPECT_LT(Painted.size(), 380U);
}

TEST_F(View_Objects, TheMarginIsAPixelOnEachSide) {
    for (const Double D : {-1.0, 301.0}) Add({{D, 5.0}, {D, 9.0}});
    for (const Double D : {-2.0, 302.0}) Add({{D, 5.0}, {D, 9.0}});
    for (const Double D : {-1.0, 251.0, -2.0, 252.0}) Add({{5.0, D}, {9.0, D}});
    EXPECT_EQ(Draw(), (Lines{{-1, 5, -1, 9}, {301, 5, 301, 9}, {5, -1, 9, -1}, {5, 251, 9, 251}}));
}

TEST_F(View_Objects, PositionsFarOffKeepTheLinesDirection) {
    Add({{-3e12, -3e12}, {4e12, 4e12}});
    Add({{-1e300, 100.0}, {1e300, 100.0}});
    Add({{1e300, 0.0}, {2e300, 100.0}});
    const Lines Painted = Draw();
    ASSERT_EQ(Painted.size(), 2U);
    EXPECT_EQ(Painted[0].X1, Painted[0].Y1);
    EXPECT_EQ(Painted[0].X2, Painted[0].Y2);
    EXPECT_LT(Painted[0].X1, -1000);
    EXPECT_GT(Painted[0].X2, 1000);
    EXPECT_EQ(Painted[1].Y1, 100);
    EXPECT_LT(Painted[1].X1, -1000);
    EXPECT_GT(Painted[1].X2, 1000);
}

// An object out of view comes into view by each kind of change; a box that is kept too long
// would hide it.
TEST_F(View_Objects, EveryChangeOfTheModelIsSeen) {
    const Long I = Add({{1000.0, 1000.0}, {1010.0, 1000.0}, {1020.0, 1000.0}});
    EXPECT_EQ(Draw().size(), 0U);
    const Long Last = Pt_Append(I, 50.0, 50.0);
    EXPECT_EQ(Draw().size(), 1U);
    Pt_Delete(I, Last);
    EXPECT_EQ(Draw().size(), 0U);
    const Long First = Pt_Prepend(I, 50.0, 50.0);
    EXPECT_EQ(Draw().size(), 1U);
    Pt_Delete(I, First);
    const Long Middle = Pt_Insert(I, Tab_Obj[I].First_Pt, 50.0, 50.0);
    EXPECT_EQ(Draw().size(), 2U);
    Pt_Delete(I, Middle);
    EXPECT_EQ(Draw().size(), 0U);

    const Long Seen = Add({{10.0, 10.0}, {20.0, 10.0}});
    EXPECT_EQ(Draw(), (Lines{{10, 10, 20, 10}}));
    Obj_Delete(I);
    EXPECT_EQ(Draw(), (Lines{{10, 10, 20, 10}})) << "the rows behind it have moved";
    EXPECT_EQ(Seen, I + 1);

    for (Pt& P : Tab_Pt.Edit_Rows()) P.X += 1000.0;
    Objects_Changed();
    EXPECT_EQ(Draw().size(), 0U);
    for (Pt& P : Tab_Pt.Edit_Rows()) P.X -= 1000.0;
    Objects_Changed();
    EXPECT_EQ(Draw().size(), 1U);
    Init_Tables();
    EXPECT_EQ(Draw().size(), 0U);
}

TEST_F(View_Objects, AProjectReadInPlaceOfAnotherIsSeen) {
    const std::string Far_Off = Write_Small_Project(Dir, "far", 2000);
    const std::string Near = Write_Small_Project(Dir, "near", 400);
    Read_Project_File(Far_Off);
    View_Center_Map();
    const std::size_t Of_Far_Off = Draw().size();
    const Long Objects = Nb_Obj, Points = Nb_Pt;
    Read_Project_File(Near);
    ASSERT_EQ(Nb_Obj, Objects) << "the counts alone would not tell";
    ASSERT_EQ(Nb_Pt, Points);
    View_Center_Map();
    EXPECT_EQ(Of_Far_Off, 0U);
    EXPECT_EQ(Draw().size(), 4U);
}

}  // namespace
