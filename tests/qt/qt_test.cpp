// tests/qt/qt_test.cpp - what tests of the window share.
#include "qt_test.h"

#include <QAbstractButton>
#include <QEvent>
#include <QMessageBox>
#include <QPointer>

void Press_Button(QDialog& Box, const std::string& Text) {
    for (QAbstractButton* Button : Box.findChildren<QAbstractButton*>())
        if (Button->isVisible() && Button->text().remove(QLatin1Char('&')) == Qt_Text(Text))
            return Button->click();
    ADD_FAILURE() << "no button " << Text << " in " << Box.windowTitle().toStdString();
    Box.reject();
}

Dialog_Script::Step Answer(std::string Text) {
    return [Text = std::move(Text)](QDialog& Box) { Press_Button(Box, Text); };
}

Dialog_Script::Dialog_Script(std::vector<Step> Steps, Count How)
    : Steps_(std::move(Steps)), How_(How) {
    QCoreApplication::instance()->installEventFilter(this);
}

Dialog_Script::~Dialog_Script() {
    if (How_ == Count::Exact) {
        EXPECT_EQ(Next_, Steps_.size()) << "dialogs that came up";
    }
}

bool Dialog_Script::eventFilter(QObject* Watched, QEvent* E) {
    auto* Shown = E->type() == QEvent::Show ? qobject_cast<QDialog*>(Watched) : nullptr;
    if (Shown == nullptr || !Shown->isModal()) return false;
    QMetaObject::invokeMethod(
        Shown, [this, Shown] { Work(*Shown); }, Qt::QueuedConnection);
    return false;
}

void Dialog_Script::Work(QDialog& Shown) {
    if (const auto* Box = qobject_cast<QMessageBox*>(&Shown))
        Texts_.push_back(Program_Text(Box->text()));
    if (Next_ < Steps_.size()) return Steps_[Next_++](Shown);
    if (How_ == Count::Any) return Steps_.back()(Shown);
    ADD_FAILURE() << "a dialog too many: " << Shown.windowTitle().toStdString() << " "
                  << (Texts_.empty() ? std::string() : Texts_.back());
    Shown.reject();
}
