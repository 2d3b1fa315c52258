// tests/qt/test_program_window.cpp - the whole program, worked as a user does.
#include <QAccessible>
#include <QDropEvent>
#include <QLabel>
#include <QMimeData>
#include <QPointer>
#include <QToolButton>
#include <QUrl>

#include "core/program.h"
#include "platform/instance_lock.h"
#include "qt/canvas_widget.h"
#include "qt/program_window_test.h"
#include "ui/canvas/view.h"
#include "ui/form/form_list.h"
#include "ui/frm/frm.h"

TEST_F(Program_Window_Test, ASecondInstanceTellsAndShowsNoWindow) {
    Instance_Lock Other;
    ASSERT_TRUE(Other.Take());
    Dialog_Script Script({[this](QDialog& Box) {
        EXPECT_FALSE(P->Window().isVisible());
        Press_Button(Box, "OK");
    }});
    EXPECT_FALSE(Start());
    EXPECT_EQ(Script.Texts().at(0), "This program is already running");
    EXPECT_FALSE(W->isVisible());
}

TEST_F(Program_Window_Test, AProjectDroppedOnTheWindowOpens) {
    ASSERT_TRUE(Start());
    QMimeData Data;
    Data.setUrls({QUrl::fromLocalFile(System_Path(Dir.Path("Island.LWM")))});
    QDragEnterEvent Enter(QPoint(50, 50), Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(W, &Enter);
    EXPECT_TRUE(Enter.isAccepted());
    QDropEvent Drop(QPointF(50, 50), Qt::CopyAction, &Data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(W, &Drop);
    EXPECT_EQ(Projet_Open, 0) << "the other program waits for its answer first";
    Turn();
    EXPECT_EQ(Projet_Open, 1);
    EXPECT_EQ(Nom_Projet, Dir.Path("Island.LWM"));
}

TEST_F(Program_Window_Test, EveryToolHasItsPicture) {
    ASSERT_TRUE(Start());
    for (const auto* Tool : W->findChildren<QToolButton*>())
        EXPECT_TRUE(!Tool->icon().isNull() || !Tool->text().isEmpty())
            << Tool->objectName().toStdString();
}

TEST_F(Program_Window_Test, AFormThatIsNotModalTicksBesideTheMainOne) {
    Open_Example();
    static int Ticks;
    Ticks = 0;
    Form_Register("Frm_Free", [] {
        auto Made = std::make_unique<Form>("Frm_Free", Wording{"Free", "Libre"});
        Made->Tick_Ms = 1;
        Made->Place = Form_Place::At(40, 70);
        Made->On_Tick = [] { ++Ticks; };
        return Made;
    });
    const double Before = Zoom;
    The_Host().Open_Form("Frm_Free", 1);
    EXPECT_TRUE(Forms_Open().empty()) << "not at once";
    while (Ticks < 3) Turn();
    auto& Window = *W->findChild<Form_Window*>();
    EXPECT_EQ(Window.pos(), QPoint(40, 70));
    Click(*W, "Cmd_ZPlus");
    EXPECT_GT(Zoom, Before) << "the main form works";
    const std::weak_ptr<Form> Gone = Forms_Open().front();
    QPointer<QWidget> Seen(&Window);
    Forms_Close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_TRUE(Seen.isNull());
    EXPECT_TRUE(Gone.expired());
}

TEST_F(Program_Window_Test, AFormWithoutAFrameStandsInTheCanvasUntilAClickElsewhere) {
    Open_Example();
    QWidget& Pic = *W->Shown().Canvas();
    for (const int Left : {50, Pic.width() - 8}) {
        Form F("Frm_Small");
        F.Add({.Kind = Control_Kind::Number, .Name = "Alt"});
        F.Set_Layout(Column({"Alt"}));
        F.Modal = F.Frameless = true;
        F.Place = Form_Place::Beside_Point(Left, 50);
        const double Before = Zoom;
        QMetaObject::invokeMethod(
            W,
            [&] {
                auto& Window = *W->findChild<Form_Window*>();
                const int Moved = Window.x() - Pic.mapToGlobal(QPoint(Left, 0)).x();
                EXPECT_EQ(Moved, Left == 50 ? 5 : -Window.width() - 9);
                EXPECT_EQ(Window.size(), Find<QWidget>(Window, "Alt").size());
                Click(*W, "Cmd_ZPlus");
            },
            Qt::QueuedConnection);
        Run_Dialog(F, W, W);
        EXPECT_EQ(F.End(), Form_End::Closed);
        EXPECT_EQ(Zoom, Before) << "the click did nothing else";
    }
}

TEST_F(Program_Window_Test, ANarrowWindowHasFewerReadOutsAndNoneIsShortened) {
    Open_Example();
    EXPECT_LT(W->minimumSizeHint().width(), 700);
    Frm_Set_Caption("L_NumCell_Area", std::string(60, 'W'));
    std::vector<int> Counts;
    for (const int Width : {3000, 1060, 640}) {
        W->resize(Width, 600);
        Turn();
        Turn();
        EXPECT_EQ(W->width(), Width);
        int Nb = 0;
        bool Gone = false;
        for (const char* Name : {"LLat", "LLon", "L_NumCell_Area", "L_CustomBmp", "L_MouseBmp",
                                 "LLatDec", "LLonDec"}) {
            const auto& Label = Find<QLabel>(*W, Name);
            EXPECT_FALSE(Gone && Label.isVisible()) << Name << " stays longer than it should";
            Gone = !Label.isVisible();
            Nb += Gone ? 0 : 1;
            EXPECT_TRUE(Gone ||
                        Label.width() >= Label.fontMetrics().horizontalAdvance(Label.text()));
        }
        Counts.push_back(Nb);
    }
    EXPECT_EQ(Counts.front(), 7);
    EXPECT_LT(Counts.at(1), 7);
    EXPECT_EQ(Counts.back(), 2);
}

TEST_F(Program_Window_Test, WindowAndViewAreAsTheyWereLeft) {
    Open_Example();
    W->resize(900, 611);
    View_Zoom_To(2.5);
    View_Drag(-300, 200);
    Cmd_Grid();
    const View_State Left = The_View_State;
    {
        Dialog_Script Script({Answer("No")});
        W->close();
    }
    P.reset();
    View_State_Reset();
    Open_Example();
    EXPECT_EQ(W->size(), QSize(900, 611));
    EXPECT_EQ(std::tuple(Zoom, Pan_X, Pan_Y, Show_Grid),
              std::tuple(Left.Zoom, Left.Pan_X, Left.Pan_Y, false));
}

TEST_F(Program_Window_Test, TheCanvasHasANameAndTheModeIsToldAsPressed) {
    Open_Example();
    const auto Told = [&](const char* Name) {
        return QAccessible::queryAccessibleInterface(&Find<QWidget>(*W, Name));
    };
    EXPECT_EQ(Told("Pic")->text(QAccessible::Name), QLatin1String("Map"));
    EXPECT_TRUE(Told("Cmd_TrtArea")->state().checked);
    EXPECT_TRUE(Told("Cmd_TrtCell")->state().checkable);
    EXPECT_FALSE(Told("Cmd_TrtCell")->state().checked);
}
