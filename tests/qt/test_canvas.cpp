// tests/qt/test_canvas.cpp - the canvas on the screen, at the screen's fineness.
#include <QImage>
#include <QWheelEvent>

#include "qt/canvas_widget.h"
#include "qt/form_widget.h"
#include "qt/form_window.h"
#include "qt_test.h"
#include "support/program_test.h"
#include "tex/picture.h"

namespace {

class Canvas_Test : public Program_Test {
protected:
    Canvas_Test() {
        F.Add({.Kind = Control_Kind::Canvas,
               .Name = "Pic",
               .On_Mouse = [this](const Mouse_Event& E) { Seen.push_back(E); },
               .On_Resize =
                   [this](Long W, Long H) {
                       Size = {W, H};
                   }});
        F.Add({.Kind = Control_Kind::Scroll_Bar, .Name = "Up", .Max = 10});
        F.Add({.Kind = Control_Kind::Scroll_Bar, .Name = "Flat", .Max = 10});
        F.Set_Layout(Column({Canvas("Pic", {"Up", "Flat"})}));
        W = std::make_unique<Form_Window>(F, nullptr, Qt::Window);
        W->resize(400, 300);
        W->show();
        Turn();
        On = std::make_unique<Surface_Scope>(Pic());
        Pic().Clear();
    }
    ~Canvas_Test() override { The_Overlay = {}; }

    Canvas_Widget& Pic() { return *W->Shown().Canvas(); }
    double Fine() { return Pic().devicePixelRatioF(); }
    // The colour in the middle of a canvas pixel, of what is on the screen.
    QRgb On_Screen(Long X, Long Y) {
        const QImage Shot = Pic().grab().toImage();
        return Shot.pixel(static_cast<int>((X + 0.5) * Fine()),
                          static_cast<int>((Y + 0.5) * Fine()));
    }

    std::vector<Mouse_Event> Seen;  // the window that closes still tells of the mouse
    std::pair<Long, Long> Size;
    Form F{"Frm_Canvas"};
    std::unique_ptr<Form_Window> W;
    std::unique_ptr<Surface_Scope> On;
};

}  // namespace

TEST_F(Canvas_Test, TheImageIsAsFineAsTheScreen) {
    EXPECT_EQ(Size.first, Pic().width());
    EXPECT_EQ(Size.second, Pic().height());
    EXPECT_EQ(Pic().Image().width(), std::lround(Pic().width() * Fine()));
    W->resize(520, 444);
    Turn();
    EXPECT_EQ(Size.first, Pic().width());
    EXPECT_EQ(Pic().Image().height(), std::lround(Pic().height() * Fine()));
}

TEST_F(Canvas_Test, WhatIsPaintedIsSeen) {
    Picture P = Picture_Make(2, 1, 24);
    P.Bytes[0] = P.Bytes[5] = 255;  // blue, then red
    Pic().Stretch_Copy(P, {0, 0, 2, 1}, Edges_Of({10, 10, 8, 4}));
    Pic().Line({0, 30, 50, 30}, {.Colour = 0x00FF00});
    Pic().Refresh();
    EXPECT_EQ(On_Screen(13, 12), 0xFF0000FFU);
    EXPECT_EQ(On_Screen(14, 12), 0xFFFF0000U);
    EXPECT_EQ(On_Screen(50, 30), 0xFF00FF00U);
    EXPECT_NE(On_Screen(51, 30), 0xFF00FF00U);
    EXPECT_NE(On_Screen(20, 31), 0xFF00FF00U);
}

TEST_F(Canvas_Test, TheOverlayLiesAboveAndLeavesTheImage) {
    const QRgb Before = On_Screen(40, 40);
    The_Overlay.Ln1 = {.At = {30, 40, 60, 40}, .Colour = 0x0000FF, .Visible = true};
    The_Overlay.Cercle = {.X = 100, .Y = 100, .Visible = true};
    The_Overlay.LPtGrid = {.X = 150, .Y = 20, .Visible = true, .Back_Colour = 0xFFC0FF};
    The_Overlay.Croix1 = {.At = {150, 30, 260, 30}, .Colour = 0x00FF00, .Visible = true};
    Pic().Overlay_Changed();
    EXPECT_EQ(On_Screen(40, 40), 0xFF0000FFU);
    EXPECT_GT(qRed(On_Screen(105, 100)), 200) << "11 pixels across";
    EXPECT_EQ(On_Screen(100, 100), Before) << "the circle is hollow";
    EXPECT_EQ(On_Screen(245, 33), 0xFFFFC0FFU) << "the label has its size without a text too";
    EXPECT_EQ(Pic().Label_Size(The_Overlay.LPtGrid), (Size_Px{100, 17}));
    EXPECT_EQ(On_Screen(160, 30), 0xFF00FF00U) << "the cross lies above the label";
    EXPECT_EQ(Pic().Image().pixel(static_cast<int>(40 * Fine()), static_cast<int>(40 * Fine())),
              Before);
    const Overlay_Items None;
    Pic().Set_Overlay(None);
    EXPECT_EQ(On_Screen(40, 40), Before) << "another canvas has another overlay";
    Pic().Set_Overlay(The_Overlay);
    EXPECT_EQ(F.View->Surface_Of("Pic"), &Pic());
    EXPECT_EQ(F.View->Surface_Of("Up"), nullptr);
}

TEST_F(Canvas_Test, IsToldThatAnotherWindowIsInFront) {
    QEvent Gone(QEvent::WindowDeactivate);
    QCoreApplication::sendEvent(&Pic(), &Gone);
    ASSERT_FALSE(Seen.empty());
    EXPECT_EQ(Seen.back().What, Mouse_Event::Kind::Away);
}

TEST_F(Canvas_Test, SmallTurnsOfTheWheelAddUpToSteps) {
    const auto Turn_Wheel = [this](int Eighths) {
        QWheelEvent E(QPointF(5, 6), QPointF(5, 6), {}, {0, Eighths}, Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&Pic(), &E);
    };
    Turn_Wheel(60);
    EXPECT_TRUE(Seen.empty());
    Turn_Wheel(60);
    Turn_Wheel(-240);
    ASSERT_EQ(Seen.size(), 2U);
    EXPECT_EQ(Seen[0].What, Mouse_Event::Kind::Wheel);
    EXPECT_EQ(Seen[0].Steps, 1);
    EXPECT_EQ(Seen[1].Steps, -2);
}
