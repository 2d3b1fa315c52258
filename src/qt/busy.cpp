// qt/busy.cpp - the window repaints while the program works, and takes no input.
#include "qt/busy.h"

#include <QCoreApplication>
#include <QEvent>

namespace {

int Depth = 0;

// Input that waits until the work is done would hit whatever is on the screen by then.
class Input_Filter final : public QObject {
protected:
    bool eventFilter(QObject*, QEvent* E) override {
        switch (E->type()) {
            case QEvent::MouseButtonPress:
            case QEvent::MouseButtonRelease:
            case QEvent::MouseButtonDblClick:
            case QEvent::MouseMove:
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

void Process_Events_Busy() {
    const Busy Now;
    QCoreApplication::processEvents();
}
