// qt/input.cpp - Qt's keys and mouse events as the program sees them.
#include "qt/input.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <cstdlib>

namespace {

constexpr int Wheel_Step = 120;  // eighths of a degree, by Qt's convention

Int Shift_Of(Qt::KeyboardModifiers Held) {
    Int Sum = 0;
    if (Held & Qt::ShiftModifier) Sum += Shift_Key;
    if (Held & Qt::ControlModifier) Sum += Ctrl_Key;
    if (Held & Qt::AltModifier) Sum += Alt_Key;
    return Sum;
}

Int Buttons_Of(Qt::MouseButtons Held) {
    Int Sum = 0;
    if (Held & Qt::LeftButton) Sum += Mouse_Left;
    if (Held & Qt::RightButton) Sum += Mouse_Right;
    if (Held & Qt::MiddleButton) Sum += Mouse_Middle;
    return Sum;
}

Key_Code Code_Of(int Key, bool On_Pad) {
    switch (Key) {
        case Qt::Key_Return:
        case Qt::Key_Enter:
            return Key_Enter;
        case Qt::Key_Escape:
            return Key_Escape;
        case Qt::Key_Left:
            return Key_Left;
        case Qt::Key_Up:
            return Key_Up;
        case Qt::Key_Right:
            return Key_Right;
        case Qt::Key_Down:
            return Key_Down;
        case Qt::Key_Delete:
            return Key_Delete;
        case Qt::Key_F1:
            return Key_F1;
        case Qt::Key_F4:
            return Key_F4;
        case Qt::Key_PageUp:
            return Key_Page_Up;
        case Qt::Key_PageDown:
            return Key_Page_Down;
        case Qt::Key_Home:
            return Key_Home;
        case Qt::Key_Plus:
            return On_Pad ? Key_Pad_Plus : Key_Plus;
        case Qt::Key_Equal:  // where plus needs Shift
            return Key_Plus;
        case Qt::Key_Minus:
            return On_Pad ? Key_Pad_Minus : Key_Minus;
        default:
            break;
    }
    const bool Has_Name =
        (Key >= Qt::Key_A && Key <= Qt::Key_Z) || (Key >= Qt::Key_0 && Key <= Qt::Key_9);
    return Has_Name ? static_cast<Key_Code>(Key) : Key_Code{0};
}

Mouse_Event Mouse_Of(const QMouseEvent& E, Mouse_Event::Kind What) {
    const bool Moves = What == Mouse_Event::Kind::Move;
    return {.What = What,
            .Button = Moves ? Buttons_Of(E.buttons()) : Buttons_Of(E.button()),
            .Shift = Shift_Of(E.modifiers()),
            .X = E.position().x(),
            .Y = E.position().y()};
}

// Of the two ways that a touch pad turns at once, the further one.
std::optional<Mouse_Event> Mouse_Of(const QWheelEvent& E, Wheel_Rest& Both) {
    const QPoint Turned = E.angleDelta();
    const bool Sideways = std::abs(Turned.x()) > std::abs(Turned.y());
    int& Rest = Sideways ? Both.Left : Both.Up;
    Rest += Sideways ? Turned.x() : Turned.y();
    const int Steps = Rest / Wheel_Step;
    Rest -= Steps * Wheel_Step;
    if (Steps == 0) return std::nullopt;
    const Int Held = Shift_Of(E.modifiers());
    return Mouse_Event{.What = Mouse_Event::Kind::Wheel,
                       .Shift = static_cast<Int>(Sideways ? Held | Shift_Key : Held),
                       .X = E.position().x(),
                       .Y = E.position().y(),
                       .Steps = static_cast<Int>(Steps)};
}

}  // namespace

Key_Event Key_Of(const QKeyEvent& E) {
    return {.Code = Code_Of(E.key(), (E.modifiers() & Qt::KeypadModifier) != 0),
            .Shift = Shift_Of(E.modifiers())};
}

std::optional<Mouse_Event> Mouse_Of(const QEvent& E, Wheel_Rest& Rest) {
    switch (E.type()) {
        case QEvent::MouseButtonPress:
            return Mouse_Of(static_cast<const QMouseEvent&>(E), Mouse_Event::Kind::Press);
        case QEvent::MouseMove:
            return Mouse_Of(static_cast<const QMouseEvent&>(E), Mouse_Event::Kind::Move);
        case QEvent::MouseButtonRelease:
            return Mouse_Of(static_cast<const QMouseEvent&>(E), Mouse_Event::Kind::Release);
        case QEvent::MouseButtonDblClick:
            return Mouse_Of(static_cast<const QMouseEvent&>(E), Mouse_Event::Kind::Double_Click);
        case QEvent::Wheel:
            return Mouse_Of(static_cast<const QWheelEvent&>(E), Rest);
        default:
            return std::nullopt;
    }
}
