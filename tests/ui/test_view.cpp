// tests/ui/test_view.cpp - zoom, pan, scroll bars, resizing, and what a redraw paints when.
#include "ui/canvas/view.h"

#include <cmath>
#include <limits>

#include "core/model_ops.h"
#include "core/program.h"
#include "ui/edit/modes.h"
#include "ui/form/form_events.h"
#include "ui/frm/frm.h"
#include "ui_support/view_test.h"

namespace {

using Kind = Surface_Op::Kind;

class View : public View_Test {
protected:
    void Expect_Same_Point(Pix A, Pix B) {
        EXPECT_NEAR(A.X, B.X, 1e-9 * (1.0 + std::fabs(A.X))) << "zoom " << Zoom;
        EXPECT_NEAR(A.Y, B.Y, 1e-9 * (1.0 + std::fabs(A.Y))) << "zoom " << Zoom;
    }
};

TEST_F(View, PansCountFromTheCanvasMiddle) {
    Zoom = 7.5;
    Pan_X = 10.0, Pan_Y = -4.0;
    Expect_Same_Point(Pic_To_Map({150.5, 125.5}), {100.0 - 10.0, 80.0 + 4.0});
    Expect_Same_Point(Pic_To_Map({150.5 + 15.0, 125.5 - 7.5}), {90.0 + 2.0, 84.0 - 1.0});
}

TEST_F(View, TheMapIsCentredAtTheTopLeftAndTheBarsFollow) {
    EXPECT_EQ(Pic_To_Map({0.0, 0.0}), (Pix{0.0, 0.0}));
    EXPECT_EQ(Pan_X, -50.5) << "the map is smaller than the canvas";
    EXPECT_EQ(Frm()["HScroll"].Value, 19367) << "16000 + 50.5 * 32000 / 480";
    EXPECT_EQ(Frm()["VScroll"].Value, 19640) << "16000 + 45.5 * 32000 / 400";

    View_Center_On_Point({.X = 40.0, .Y = 70.0});
    Expect_Same_Point(Pic_To_Map({150.5, 125.5}), {40.0, 70.0});
    EXPECT_EQ(Frm()["HScroll"].Value, 12000);
    EXPECT_EQ(Frm()["VScroll"].Value, 15200);

    View_Center_On_Point({.X = 1e6, .Y = -1e6});
    EXPECT_EQ(Pan_X, -999900.0) << "only the bars are held";
    EXPECT_EQ(Frm()["HScroll"].Value, 32000);
    EXPECT_EQ(Frm()["VScroll"].Value, 0);

    View_Reset();
    EXPECT_EQ(Pan_X, 0.0);
    EXPECT_EQ(Frm()["HScroll"].Value, 0);
}

TEST_F(View, ScrollBarsPan) {
    Frm().Set_Enabled("HScroll", true);
    ASSERT_TRUE(Form_Scroll(Frm(), "HScroll", 14000));
    EXPECT_EQ(Pan_X, 30.0);
    EXPECT_EQ(Pan_Y, -45.5);
    EXPECT_EQ(Canvas.Of_Kind(Kind::Clear).size(), 1U);
    EXPECT_EQ(Frm().Focus(), "Pic");
    VScroll_Change(32000);
    EXPECT_EQ(Pan_Y, -200.0);
    Scroll_Guard = true;
    VScroll_Change(0);
    EXPECT_EQ(Pan_Y, -200.0);
    EXPECT_EQ(Canvas.Of_Kind(Kind::Clear).size(), 2U);
}

TEST_F(View, ZoomStepsAndLimits) {
    const Pix Middle = Pic_To_Map({150.5, 125.5});
    Cmd_ZPlus();
    EXPECT_DOUBLE_EQ(Zoom, 1.15);
    Expect_Same_Point(Pic_To_Map({150.5, 125.5}), Middle);
    Zoom = 20.0;
    Cmd_ZPlus();
    EXPECT_DOUBLE_EQ(Zoom, 23.0);
    EXPECT_EQ(Canvas.Of_Kind(Kind::Clear).size(), 2U);
    Zoom = 20.01;
    Cmd_ZPlus();
    EXPECT_EQ(Zoom, 20.01);
    EXPECT_EQ(Canvas.Of_Kind(Kind::Clear).size(), 2U) << "nothing to paint";
    Zoom = 1.0049;
    Cmd_ZMoins();
    EXPECT_EQ(Zoom, 1.0 / 1.15) << "snapped to 1 first";
    Zoom = 1.011;
    Cmd_ZPlus();
    EXPECT_EQ(Zoom, 1.011 * 1.15);
}

TEST_F(View, TheWheelKeepsThePointUnderIt) {
    const Pic_Px At{37.0, 201.0};
    const Pix Point = Pic_To_Map(At);
    for (const Int Steps : {1, 1, 3, -7, -2, 4, 30}) {
        View_Wheel(Steps, At);
        Expect_Same_Point(Pic_To_Map(At), Point);
        EXPECT_EQ(Frm()["HScroll"].Value,
                  std::clamp(Round_Lng(16000 - Pan_X * 32000 / 480), Long{0}, Long{32000}));
    }
    EXPECT_GT(Zoom, 20.0);
    const View_State Before = The_View_State;
    Canvas.Ops.clear();
    View_Wheel(1, {0.0, 0.0});
    EXPECT_EQ(Zoom, Before.Zoom);
    EXPECT_EQ(Pan_X, Before.Pan_X);
    EXPECT_TRUE(Canvas.Ops.empty());
}

TEST_F(View, DraggingMovesTheMapWithTheMouse) {
    Zoom = 4.0;
    const Pix Point = Pic_To_Map({60.0, 60.0});
    Pic_Mouse({.What = Mouse_Event::Kind::Press, .Button = Mouse_Middle, .X = 60.0, .Y = 60.0});
    Pic_Mouse({.What = Mouse_Event::Kind::Move, .Button = Mouse_Middle, .X = 90.0, .Y = 40.0});
    Expect_Same_Point(Pic_To_Map({90.0, 40.0}), Point);
    EXPECT_EQ(Frm()["HScroll"].Value, Round_Lng(16000 - Pan_X * 32000 / 480));
    Pic_Mouse({.What = Mouse_Event::Kind::Release, .Button = Mouse_Middle, .X = 90.0, .Y = 40.0});
    Pic_Mouse({.What = Mouse_Event::Kind::Move, .X = 10.0, .Y = 10.0});
    Expect_Same_Point(Pic_To_Map({90.0, 40.0}), Point);
}

TEST_F(View, AResizedCanvasIsOddAndKeepsItsMiddle) {
    Zoom = 2.0;
    const Pix Middle = Pic_To_Map({150.5, 125.5});
    View_Resize(800, 601);
    EXPECT_EQ(Pic_Width, 799);
    EXPECT_EQ(Pic_Height, 601);
    Expect_Same_Point(Pic_To_Map({399.5, 300.5}), Middle);
    EXPECT_EQ(Canvas.Of_Kind(Kind::Clear).size(), 1U);
    View_Resize(0, -5);
    EXPECT_EQ(Pic_Width, 1);
    EXPECT_EQ(Pic_Height, 1);
    Canvas.Ops.clear();
    Edit_On = 0;
    View_Resize(100, 100);
    EXPECT_TRUE(Canvas.Ops.empty()) << "no project to show";
}

TEST_F(View, ARedrawWaitsClearsAndShows) {
    Canvas_Pointer(Pointer_Shape::Cross);
    Canvas.Ops.clear();
    View_Redraw();
    const auto& Ops = Canvas.Ops;
    ASSERT_GE(Ops.size(), 4U);
    EXPECT_EQ(Ops[0].Shape, Pointer_Shape::Hourglass);
    EXPECT_EQ(Ops[1].What, Kind::Clear);
    EXPECT_EQ(Ops[Ops.size() - 2].What, Kind::Refresh);
    EXPECT_EQ(Ops.back().What, Kind::Cursor);
    EXPECT_EQ(Ops.back().Shape, Pointer_Shape::Cross) << "the canvas's own in a mode";
}

TEST_F(View, ACalibrationWithoutSenseIsHarmless) {
    Mode_Area = 1;
    Tab_Area.Append(Record_At<Area>(3, 3));
    const auto Use = [] {
        View_Center_Map();
        View_Redraw();
        Mouse_Read_Out({10.0, 10.0});
        Mouse_Click_At({10.0, 10.0});
        View_Wheel(-1, {3.0, 3.0});
    };
    The_Calibration = {};
    Use();
    EXPECT_EQ(The_Grid_In_View.First_Col, 0);
    Lay_Grid(128, 3);
    LonGridSE = 1e9, XGridSE = 1e12;
    Use();
    Lay_Grid(128, 3);
    XGridNW = std::numeric_limits<Double>::quiet_NaN();
    Use();
    Lay_Grid(128, 3);
    std::swap(XGridNW, XGridSE);
    Use();
    EXPECT_LT(Canvas.Of_Kind(Kind::Line).size(), 1000U);
}

}  // namespace
