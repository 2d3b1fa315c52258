// tests/qt/qt_test.h - what tests of the window share.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialog>
#include <QObject>
#include <QTest>
#include <algorithm>
#include <functional>
#include <string>
#include <utility>
#include <vector>

#include "qt/text.h"

/// Lets everything happen that waits in the event loop.
inline void Turn() {
    QCoreApplication::sendPostedEvents();
    QCoreApplication::processEvents();
}

/// The widget or action of that name below Root; a test without it stops.
template <typename T>
T& Find(const QObject& Root, const std::string& Name) {
    T* Found = Root.findChild<T*>(Qt_Text(Name));
    if (Found == nullptr) throw std::runtime_error("no widget " + Name);
    return *Found;
}

/// Near the left edge, where the box of an option stands.
inline void Click(const QObject& Root, const std::string& Name) {
    auto& Widget = Find<QWidget>(Root, Name);
    const QPoint At(std::min(8, Widget.width() / 2), Widget.height() / 2);
    QTest::mouseClick(&Widget, Qt::LeftButton, {}, At);
    Turn();
}

/// Keys go to whatever has the focus in Window.
inline void Press(QWidget& Window, Qt::Key Key, Qt::KeyboardModifiers Held = {}) {
    QWidget* Focus = Window.focusWidget();
    QTest::keyClick(Focus != nullptr ? Focus : &Window, Key, Held);
    Turn();
}

inline void Type(QWidget& Window, const char* Text) {
    QTest::keyClicks(Window.focusWidget(), QLatin1String(Text));
    Turn();
}

/// Presses the button of a box that has Text on it.
void Press_Button(QDialog& Box, const std::string& Text);

/// Works the dialogs and boxes that come up while it lives, each by the next of its steps. One
/// too many is dismissed and fails the test, and so does one that does not come. With Any the
/// last step serves as often as it is needed.
class Dialog_Script final : public QObject {
public:
    using Step = std::function<void(QDialog&)>;
    enum class Count { Exact, Any };

    explicit Dialog_Script(std::vector<Step> Steps, Count How = Count::Exact);
    ~Dialog_Script() override;

    /// Of the boxes shown so far.
    const std::vector<std::string>& Texts() const { return Texts_; }

protected:
    bool eventFilter(QObject* Watched, QEvent* E) override;

private:
    void Work(QDialog& Shown);

    std::vector<Step> Steps_;
    Count How_;
    std::size_t Next_ = 0;
    std::vector<std::string> Texts_;
};

/// The step of a box that only needs its button pressed.
Dialog_Script::Step Answer(std::string Text);
