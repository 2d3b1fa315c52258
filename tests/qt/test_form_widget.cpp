// tests/qt/test_form_widget.cpp - a form drawn, its changes followed, its user heard.
#include <QAbstractButton>
#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QScrollBar>
#include <QTabWidget>
#include <algorithm>

#include "qt/form_widget.h"
#include "qt/form_window.h"
#include "qt_test.h"
#include "sample_form.h"
#include "support/program_test.h"
#include "tex/picture.h"

namespace {

class Form_Widget_Test : public Program_Test {
protected:
    Form_Widget_Test() { Show(); }

    void Show() {
        Language = "US";
        S.F.Set_Language("US");
        W = std::make_unique<Form_Window>(S.F, nullptr, Qt::Dialog);
        W->show();
        W->activateWindow();
        W->Shown().Take_Focus();
        Turn();
    }
    template <typename T>
    T& Get(const std::string& Name) {
        return Find<T>(*W, Name);
    }
    void Bad_Number() {
        Get<QLineEdit>("Number").setFocus(Qt::TabFocusReason);
        Turn();
        Get<QLineEdit>("Number").selectAll();
        Type(*W, "x");
    }
    std::size_t Messages() const { return Host_Of_Test.Boxes.size(); }
    std::string Focus() { return Program_Text(W->focusWidget()->objectName()); }

    Sample S;
    std::unique_ptr<Form_Window> W;
};

}  // namespace

TEST_F(Form_Widget_Test, ChangesOfTheFormAreFollowed) {
    Form& F = S.F;
    Picture Shown = Picture_Make(30, 20, 24);
    F.Set_Text("Field", "caf\xE9");
    F.Set_Value("Chk", 1);
    F.Set_Value("Opt", 2);
    F.Set_Items("List", {"a", "b", "c", "d"}, 3);
    F.Set_Items("Cbo", {"x"}, 0);
    F.Set_Value("Tabs", 1);
    F.Set_Enabled("Tab_2", false);
    F.Set_Value("Scroll", 40);
    F.Set_Shown("Image", &Shown);
    F.Set_Enabled("Cmd_Ok", false);
    F.Set_Visible("Number", false);
    F.Set_Enabled("Fram", false);
    F.Set_Language("FR");
    F.Set_Title("Autre");
    Turn();
    EXPECT_EQ(Program_Text(Get<QLineEdit>("Field").text()), "caf\xE9");
    EXPECT_TRUE(Get<QCheckBox>("Chk").isChecked());
    EXPECT_EQ(Get<QCheckBox>("Chk").text(), "Cocher");
    EXPECT_TRUE(Get<QAbstractButton>("Opt(2)").isChecked());
    EXPECT_EQ(Get<QAbstractButton>("Opt(2)").text(), "Trois");
    EXPECT_EQ(Get<QListWidget>("List").count(), 4);
    EXPECT_EQ(Get<QListWidget>("List").currentRow(), 3);
    EXPECT_EQ(Get<QComboBox>("Cbo").currentText(), "x");
    EXPECT_EQ(Get<QScrollBar>("Scroll").value(), 40);
    EXPECT_EQ(Get<QWidget>("Image").size(), QSize(30, 20));
    EXPECT_EQ(Get<QTabWidget>("Tabs").currentIndex(), 1) << "though the page is disabled";
    EXPECT_FALSE(Get<QWidget>("Cmd_Ok").isEnabled());
    EXPECT_FALSE(Get<QWidget>("Number").isVisible());
    EXPECT_FALSE(Get<QWidget>("Scroll").isEnabled()) << "its frame is disabled";
    EXPECT_EQ(Get<QGroupBox>("Fram").title(), "Cadre");
    EXPECT_EQ(Get<QMenu>("Mnu").title(), "&Menu");
    EXPECT_EQ(W->windowTitle(), "Autre");
    EXPECT_EQ(S.Log, "") << "no handler has run";
}

TEST_F(Form_Widget_Test, TabFollowsTheLayout) {
    std::string Order;
    for (QWidget* At = W->nextInFocusChain(); At != W.get(); At = At->nextInFocusChain())
        if ((At->focusPolicy() & Qt::TabFocus) != 0 && At->focusProxy() == nullptr &&
            At->isVisible())
            Order += Program_Text(At->objectName()) + " ";
    EXPECT_EQ(Order,
              "Number Field Path Chk Opt(0) Opt(1) Opt(2) Opt_Colour(0) Opt_Colour(1) "
              "Opt_Part(0) Cbo Opt_Part(1) qt_tabwidget_tabbar List Cmd_Ok Cmd_Plain Cmd_Cancel "
              "Cmd_Help ");
}

TEST_F(Form_Widget_Test, AListThatIsEnteredChoosesNothing) {
    S.F.Set_Value("List", -1);
    Turn();
    Get<QListWidget>("List").setFocus(Qt::TabFocusReason);
    Turn();
    EXPECT_EQ(S.F.Focus(), "List");
    EXPECT_EQ(S.F["List"].Value, -1);
    Press(*W, Qt::Key_Down);
    EXPECT_EQ(S.F["List"].Value, 0);
    EXPECT_LT(Get<QWidget>("Opt(0)").x(), Get<QWidget>("Opt").width() / 4) << "to the left";
}

TEST_F(Form_Widget_Test, ColoursAndSizesOfTheirOwn) {
    const auto Middle = [&](const char* Name) {
        const QImage Shot = Get<QWidget>(Name).grab().toImage();
        return Shot.pixel(Shot.width() / 2, Shot.height() / 2);
    };
    EXPECT_EQ(Middle("Lamp"), 0xFFFF0000U);
    S.F.Set_Colour("Lamp", 0x00FF00);
    S.F.Set_Colour("Lab", 0xFF0000, 0xFFFFC0);
    EXPECT_EQ(Get<QWidget>("Preview").size(), QSize(64, 48)) << "empty as it is";
    Picture White = Picture_Make(2, 2, 24);
    std::ranges::fill(White.Bytes, 255);
    S.F.Set_Shown("Preview", &White);
    Turn();
    EXPECT_EQ(Middle("Lamp"), 0xFF00FF00U);
    EXPECT_EQ(Get<QLabel>("Lab").palette().color(QPalette::WindowText), QColor(Qt::red));
    EXPECT_EQ(Get<QWidget>("Preview").grab().toImage().pixel(60, 44), 0xFFFFFFFFU);
    EXPECT_EQ(Get<QWidget>("Preview").size(), QSize(64, 48));
}

TEST_F(Form_Widget_Test, WhatTheUserDoesReachesTheForm) {
    Click(*W, "Cmd_Plain");
    Click(*W, "Chk");
    Click(*W, "Opt(1)");
    auto& List = Get<QListWidget>("List");
    const QPoint Second = List.visualItemRect(List.item(1)).center();
    QTest::mouseClick(List.viewport(), Qt::LeftButton, {}, Second);
    QTest::mouseClick(List.viewport(), Qt::LeftButton, {}, Second);
    QTest::mouseDClick(List.viewport(), Qt::LeftButton, {}, Second);
    Click(*W, "Path");
    QTest::mouseDClick(&Get<QLineEdit>("Path"), Qt::LeftButton);
    Press(*W, Qt::Key_F4);
    Get<QAction>("Path.choose").trigger();
    Click(*W, "Opt_Part(1)");
    Get<QComboBox>("Cbo").setFocus(Qt::TabFocusReason);
    QTest::keyClick(&Get<QComboBox>("Cbo"), Qt::Key_Down);
    auto& Bar = *Get<QTabWidget>("Tabs").tabBar();
    QTest::mouseClick(&Bar, Qt::LeftButton, {}, Bar.tabRect(1).center());
    Turn();
    Get<QScrollBar>("Scroll").triggerAction(QAbstractSlider::SliderPageStepAdd);
    Get<QAction>("Mnu_Item").trigger();
    EXPECT_EQ(S.Log,
              "plain check option list row row list-twice path chooser chooser chooser part "
              "combo tab scroll item ");
    EXPECT_EQ(S.F["Chk"].Value, 1);
    EXPECT_EQ(S.F["Opt"].Value, 1);
    EXPECT_EQ(S.F["List"].Value, 1);
    EXPECT_EQ(S.F["Cbo"].Value, 1);
    EXPECT_EQ(S.F["Tabs"].Value, 1);
    EXPECT_EQ(S.F["Scroll"].Value, 10);
}

TEST_F(Form_Widget_Test, AFieldIsSelectedOnEntryAndReadOnEnter) {
    EXPECT_EQ(S.F.Focus(), "Number") << "the first control has the focus";
    EXPECT_EQ(Get<QLineEdit>("Number").selectedText(), "12");
    Type(*W, " 34 ");
    EXPECT_EQ(S.Held, "12") << "not before Enter";
    Press(*W, Qt::Key_Return);
    EXPECT_EQ(S.Held, "34");
    EXPECT_EQ(Get<QLineEdit>("Number").text(), "34");
    EXPECT_EQ(Get<QLineEdit>("Number").selectedText(), "34");
    Type(*W, "99");
    Press(*W, Qt::Key_Escape);
    EXPECT_EQ(Get<QLineEdit>("Number").text(), "34") << "Escape puts the held value back";
    EXPECT_FALSE(S.F.Is_Closed());
    Press(*W, Qt::Key_Escape);
    EXPECT_TRUE(S.F.Is_Closed()) << "with nothing typed it is the dialog's";
}

TEST_F(Form_Widget_Test, AClickOnAControlReadsTheFieldOnce) {
    Bad_Number();
    for (const char* Name : {"Cmd_Ok", "Chk", "Opt(1)"}) {
        const std::size_t Before = Messages();
        Click(*W, Name);
        EXPECT_EQ(Messages(), Before + 1) << Name;
        EXPECT_EQ(Focus(), "Number") << Name;
    }
    auto& List = Get<QListWidget>("List");
    QTest::mouseClick(List.viewport(), Qt::LeftButton, {},
                      List.visualItemRect(List.item(2)).center());
    Turn();
    EXPECT_EQ(Messages(), 4U);
    EXPECT_FALSE(S.F.Is_Closed());
    EXPECT_FALSE(Get<QCheckBox>("Chk").isChecked()) << "the refused click leaves no mark";
    EXPECT_TRUE(Get<QAbstractButton>("Opt(0)").isChecked());
    EXPECT_NE(List.currentRow(), 2);
    EXPECT_EQ(S.Log, "");
    Get<QLineEdit>("Number").selectAll();
    Type(*W, "7");
    Click(*W, "Cmd_Ok");
    EXPECT_EQ(Messages(), 4U);
    EXPECT_EQ(S.Held, "7") << "read before the button's work";
    EXPECT_EQ(S.F.End(), Form_End::Ok);
}

TEST_F(Form_Widget_Test, TheFormSeesAKeyBeforeFieldsAndMenus) {
    std::vector<Key_Event> Seen;
    bool Takes = true;
    S.F.On_Key = [&](Key_Event K) {
        Seen.push_back(K);
        return Takes;
    };
    Press(*W, Qt::Key_M, Qt::AltModifier);
    Press(*W, Qt::Key_5);
    Press(*W, Qt::Key_Plus, Qt::AltModifier | Qt::KeypadModifier);
    Press(*W, Qt::Key_Left, Qt::ShiftModifier | Qt::ControlModifier);
    ASSERT_EQ(Seen.size(), 4U) << "each key once";
    EXPECT_EQ(Seen[0].Code, 'M');
    EXPECT_EQ(Seen[0].Shift, Alt_Key);
    EXPECT_EQ(Seen[2].Code, Key_Pad_Plus);
    EXPECT_EQ(Seen[3].Code, Key_Left);
    EXPECT_EQ(Seen[3].Shift, Shift_Key + Ctrl_Key);
    EXPECT_EQ(Get<QLineEdit>("Number").text(), "12") << "a key that was used goes no further";
    Takes = false;
    Press(*W, Qt::Key_5);
    EXPECT_EQ(Get<QLineEdit>("Number").text(), "5");
}
