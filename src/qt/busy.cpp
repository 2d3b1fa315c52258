// qt/busy.cpp - the window repaints while the program works, and takes no input.
#include "qt/busy.h"

#include <QAbstractButton>
#include <QApplication>
#include <QKeyEvent>
#include <utility>

namespace {

int Depth = 0;

constexpr char Lets_Through[] = "in_long_work";

bool Is_Let_Through(const QObject* Button) {
    return Button->property(Lets_Through).toBool();
}

// The button that the user sees, or null.
QAbstractButton* Button_In_Sight() {
    for (QWidget* Window : QApplication::topLevelWidgets())
        for (auto* Button : Window->findChildren<QAbstractButton*>())
            if (Is_Let_Through(Button) && Button->isVisible() && Button->isEnabled()) return Button;
    return nullptr;
}

// One that is held down gets its release wherever that is.
bool Is_For_Button(const QEvent& E) {
    const QAbstractButton* Button = Button_In_Sight();
    if (Button == nullptr) return false;
    const QPoint At = static_cast<const QMouseEvent&>(E).globalPosition().toPoint();
    return Button->isDown() || Button->rect().contains(Button->mapFromGlobal(At));
}

bool Is_Escape(const QEvent& E) {
    return E.type() == QEvent::KeyPress && static_cast<const QKeyEvent&>(E).key() == Qt::Key_Escape;
}

// Input that waits until the work is done would hit whatever is on the screen by then.
class Input_Filter final : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* E) override {
        if (Is_Escape(*E)) {
            if (QAbstractButton* Button = Button_In_Sight())
                QMetaObject::invokeMethod(Button, &QAbstractButton::click, Qt::QueuedConnection);
            return true;
        }
        switch (E->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::MouseMove:
                return !Is_For_Button(*E);
            case QEvent::Wheel:
            case QEvent::KeyPress:
            case QEvent::KeyRelease:
            case QEvent::Shortcut:
            case QEvent::ShortcutOverride:
            case QEvent::ContextMenu:
            case QEvent::DragEnter:
            case QEvent::Drop:
                return true;
            case QEvent::Close:
                E->ignore();
                return true;
            default:
                return false;
        }
    }
};

Input_Filter& The_Filter() {
    static Input_Filter Filter;
    return Filter;
}

}  // namespace

Busy::Busy() {
    if (Depth++ == 0) QCoreApplication::instance()->installEventFilter(&The_Filter());
}

Busy::~Busy() {
    if (--Depth == 0) QCoreApplication::instance()->removeEventFilter(&The_Filter());
}

bool Busy::Is_On() {
    return Depth > 0;
}

void Let_Through_Busy(QAbstractButton& Button) {
    Button.setProperty(Lets_Through, true);
}

Busy_Pause::Busy_Pause() : Depth_(std::exchange(Depth, 0)) {
    if (Depth_ > 0) QCoreApplication::instance()->removeEventFilter(&The_Filter());
}

Busy_Pause::~Busy_Pause() {
    if (Depth_ > 0) QCoreApplication::instance()->installEventFilter(&The_Filter());
    Depth = Depth_;
}

void Process_Events_Busy() {
    const Busy Now;
    QCoreApplication::processEvents();
}
