// tests/qt/test_boxes.cpp - message boxes and questions for a file.
#include "qt/boxes.h"

#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>

#include "core/program.h"
#include "qt/qt_words.h"
#include "qt_test.h"
#include "support/program_test.h"

namespace {

class Boxes_Test : public Program_Test {
protected:
    Boxes_Test() { Language = "US"; }

    // The box of that style, with its button pressed.
    Int Press_In(Int Style, const char* Button) {
        Dialog_Script Script({Answer(Button)});
        return Show_Message_Box({.Text = "Text", .Style = Style}, nullptr);
    }
    Int Press_Key(Int Style, Qt::Key Key) {
        Dialog_Script Script({[Key](QDialog& Box) { QTest::keyClick(&Box, Key); }});
        return Show_Message_Box({.Text = "Text", .Style = Style}, nullptr);
    }
    File_Question Question(File_Question::Kind Mode) {
        return {.Mode = Mode,
                .Title = "Loading a file",
                .Start_Dir = Dir.Path() + "\\",
                .File_Name = {},
                .Filter = "Terrafold (*.LWM)|*.LWM"};
    }
    // Types Name into the question for a file and accepts it.
    static Dialog_Script::Step Typed(const char* Name) {
        return [Name](QDialog& D) {
            Find<QLineEdit>(D, "fileNameEdit").setText(QLatin1String(Name));
            auto& Box = *D.findChild<QDialogButtonBox*>();
            for (QAbstractButton* Button : Box.buttons())
                if (Box.buttonRole(Button) == QDialogButtonBox::AcceptRole) Button->click();
        };
    }
};

}  // namespace

TEST_F(Boxes_Test, EachButtonGivesItsNumber) {
    EXPECT_EQ(Press_In(Box_Ok, "OK"), Button_Ok);
    EXPECT_EQ(Press_In(Box_Ok_Cancel + Box_Warning, "Cancel"), Button_Cancel);
    EXPECT_EQ(Press_In(Box_Yes_No_Cancel + Box_Question, "No"), Button_No);
    EXPECT_EQ(Press_In(Box_Yes_No + Box_Stop, "Yes"), Button_Yes);
    Language = "FR";
    EXPECT_EQ(Press_In(Box_Yes_No_Cancel, "Oui"), Button_Yes);
    EXPECT_EQ(Press_Key(Box_Yes_No, Qt::Key_N), Button_No);
    EXPECT_EQ(Press_Key(Box_Yes_No_Cancel, Qt::Key_O), Button_Yes);
    EXPECT_EQ(Press_In(Box_Yes_No_Cancel, "Annuler"), Button_Cancel);
}

TEST_F(Boxes_Test, ANameWithoutAnExtensionGetsThatOfTheFilter) {
    Dir.Write("old.LWM", "");
    {
        Dialog_Script Script({Typed("new")});
        EXPECT_EQ(Ask_For_File(Question(File_Question::Kind::Save), nullptr), Dir.Path("new.LWM"));
    }
    Dialog_Script Script({Typed("old")});
    EXPECT_EQ(Ask_For_File(Question(File_Question::Kind::Open), nullptr), Dir.Path("old.LWM"));
}

// The question is Qt's own, in French all the same.
TEST_F(Boxes_Test, AFileIsReplacedOnlyAfterAQuestion) {
    Language = "FR";
    Qt_Words Words;
    QCoreApplication::installTranslator(&Words);
    Dir.Write("old.LWM", "");
    {
        const Dialog_Script Unasked({Typed("old")});
        EXPECT_EQ(Ask_For_File(Question(File_Question::Kind::Any_Name), nullptr),
                  Dir.Path("old.LWM"));
    }
    Dialog_Script Script({Typed("old"), [](QDialog& Question) {
                              auto* Asked = static_cast<QDialog*>(Question.parentWidget());
                              QMetaObject::invokeMethod(Asked, &QDialog::reject,
                                                        Qt::QueuedConnection);
                              Press_Button(Question, "Non");
                          }});
    EXPECT_EQ(Ask_For_File(Question(File_Question::Kind::Save), nullptr), std::nullopt);
}
