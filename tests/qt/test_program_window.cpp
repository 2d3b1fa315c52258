// tests/qt/test_program_window.cpp - the whole program, worked as a user does.
#include <QAction>
#include <QDropEvent>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPaintEvent>
#include <QScrollBar>
#include <QToolButton>
#include <QUrl>

#include "core/model.h"
#include "core/program.h"
#include "platform/instance_lock.h"
#include "qt/busy.h"
#include "qt/canvas_widget.h"
#include "qt/program_window_test.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"
#include "ui/frm/frm.h"

namespace {

// Counts how often a widget is painted.
class Paint_Count final : public QObject {
public:
    explicit Paint_Count(QWidget& Of) { Of.installEventFilter(this); }
    int Nb = 0;

protected:
    bool eventFilter(QObject*, QEvent* E) override {
        Nb += E->type() == QEvent::Paint;
        return false;
    }
};

}  // namespace

TEST_F(Program_Window_Test, AProjectIsOpenedSeenAndMovedAbout) {
    Open_Example();
    EXPECT_TRUE(W->isVisible());
    EXPECT_TRUE(W->windowTitle().contains(QLatin1String("Island.LWM")));
    EXPECT_GT(Colours_Shown(), 10U);
    EXPECT_EQ(W->focusWidget(), W->Shown().Canvas());
    EXPECT_EQ(Pic_Width % 2 + Pic_Height % 2, 2);
    EXPECT_LE(W->Shown().Canvas()->width() - Pic_Width, 1);

    const QImage Before = W->Shown().Canvas()->Image();
    Click(*W, "Cmd_ZPlus");
    EXPECT_EQ(Zoom, 1.15);
    EXPECT_NE(W->Shown().Canvas()->Image(), Before);
    Press(*W, Qt::Key_Minus, Qt::AltModifier | Qt::KeypadModifier);
    EXPECT_EQ(Zoom, 1.0);
    const double Pan = Pan_X;
    Find<QScrollBar>(*W, "HScroll").triggerAction(QAbstractSlider::SliderPageStepAdd);
    EXPECT_NE(Pan_X, Pan);
    const double Pan_Now = Pan_X;
    QWidget& Pic = *W->Shown().Canvas();
    QTest::mousePress(&Pic, Qt::MiddleButton, {}, QPoint(100, 100));
    QMouseEvent Drag(QEvent::MouseMove, QPointF(130, 100), QPointF(130, 100), Qt::NoButton,
                     Qt::MiddleButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&Pic, &Drag);
    QTest::mouseRelease(&Pic, Qt::MiddleButton, {}, QPoint(130, 100));
    EXPECT_NEAR(Pan_X, Pan_Now + 30.0, 1e-9);
    EXPECT_TRUE(Close("No"));
}

TEST_F(Program_Window_Test, EachModeIsEnteredByItsButton) {
    Open_Example();
    const std::pair<const char*, const Int*> Modes[] = {
        {"Cmd_TrtCell", &Mode_Cell}, {"Cmd_Excl_Areas", &Mode_Excl},
        {"Cmd_LandClass", &Mode_LC}, {"Cmd_WaterClass", &Mode_WC},
        {"Cmd_TrtIma", &Mode_Ima},   {"Cmd_Saisie_Routes", &Mode_Route},
        {"Cmd_TrtArea", &Mode_Area}};
    for (const auto& [Button, Flag] : Modes) {
        EXPECT_TRUE(Enabled(Button)) << Button;
        Click(*W, Button);
        EXPECT_EQ(*Flag, 1) << Button;
        EXPECT_FALSE(Enabled(Button)) << Button;
        EXPECT_EQ(W->Shown().Canvas()->cursor().shape(), Qt::CrossCursor) << Button;
    }
    Press(*W, Qt::Key_E, Qt::AltModifier);
    EXPECT_EQ(Mode_Excl, 1) << "by its key";
}

TEST_F(Program_Window_Test, TheGridColourIsChosenBesideItsButton) {
    Open_Example();
    const auto& Button = Find<QWidget>(*W, "Cmd_ColourGrid");
    const QPoint Below = Button.mapToGlobal(QPoint(0, Button.height()));
    Dialog_Script Script({[&](QDialog& Box) {
        EXPECT_EQ(Box.pos().y(), Below.y());
        EXPECT_LE(Box.pos().x(), Below.x());
        Click(Box, "Opt_ColourGrid(6)");
    }});
    const QImage Before = W->Shown().Canvas()->Image();
    Click(*W, "Cmd_ColourGrid");
    EXPECT_EQ(Grid_Colour, 0);
    EXPECT_NE(W->Shown().Canvas()->Image(), Before) << "the grid is painted in it at once";
}

TEST_F(Program_Window_Test, GeneratingShowsItsProgressAndLeavesTheWindowInOrder) {
    Open_Example();
    QWidget& Progress = Find<QWidget>(*W, "Fram_Compile");
    Paint_Count Painted(Progress);
    bool Kept_Away = true;
    Dialog_Script Script({[&](QDialog& Box) {
                             Kept_Away = Kept_Away && !Enabled("Cmd_Save") && Progress.isVisible();
                             Press_Button(Box, "OK");
                         }},
                         Dialog_Script::Count::Any);
    Click(*W, "Cmd_API");
    EXPECT_FALSE(Script.Texts().empty()) << "the compilers are not there";
    EXPECT_TRUE(Kept_Away);
    EXPECT_GT(Painted.Nb, 0);
    EXPECT_FALSE(Progress.isVisible());
    EXPECT_TRUE(Enabled("Cmd_Save"));
    EXPECT_TRUE(Dir.Has("App/Terrafold$_Poly_LWM.asm"));
    EXPECT_TRUE(Dir.Has("App/TmpRt.Sca"));
    EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(Program_Window_Test, SavingAndLeavingAskAsTheyShould) {
    Open_Example();
    std::filesystem::remove(Dir.Native("Island.LWM"));
    Press(*W, Qt::Key_S, Qt::ControlModifier);
    EXPECT_TRUE(Dir.Has("Island.LWM"));
    EXPECT_FALSE(Close("Cancel"));
    EXPECT_TRUE(W->isVisible());
    EXPECT_EQ(Projet_Open, 1);
    std::filesystem::remove(Dir.Native("Island.LWM"));
    EXPECT_TRUE(Close("Yes"));
    EXPECT_TRUE(Dir.Has("Island.LWM"));
    EXPECT_EQ(Projet_Open, 0);
    EXPECT_TRUE(std::filesystem::is_empty(Dir.Native("App/Temp"))) << "no map tiles are left";
}

TEST_F(Program_Window_Test, TheLanguageChangesAtOnce) {
    ASSERT_TRUE(Start());
    Dialog_Script Script({[](QDialog& D) {
        Click(D, "Opt_Lang(0)");
        Click(D, "Cmd_Ok");
    }});
    Find<QAction>(*W, "Mnu_Param_Gene").trigger();
    Turn();
    EXPECT_EQ(Find<QMenu>(*W, "Mnu_File").title().remove(QLatin1Char('&')), "Fichiers");
    EXPECT_EQ(Find<QAction>(*W, "Mnu_File_Quit").text(), "Quitter");
    EXPECT_EQ(Find<QToolButton>(*W, "Cmd_Save").toolTip(), "Enregistrer");
}

TEST_F(Program_Window_Test, TheFirstStartAsksAboveTheWindow) {
    Settings("0");
    int Asked = 0;
    const auto Refuse = [&](QDialog& D) {
        EXPECT_TRUE(P->Window().isVisible());
        ++Asked;
        Click(D, "Cmd_Cancel");
    };
    Dialog_Script Script({Refuse, Refuse, [](QDialog& D) { Click(D, "Cmd_Ok"); }});
    EXPECT_TRUE(Start());
    EXPECT_EQ(Asked, 2) << "it comes back until it is confirmed";
    EXPECT_EQ(Fl1Fois, 1);
}

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
