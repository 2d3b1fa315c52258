// qt/input.h - Qt's keys and mouse events as the program sees them.
#pragma once

#include <optional>

#include "ui/form/events.h"

class QEvent;
class QKeyEvent;

/// The key; Code is 0 for one that the program has no name for.
Key_Event Key_Of(const QKeyEvent& E);

/// The parts of wheel steps that are not turned yet.
struct Wheel_Rest {
    int Up = 0, Left = 0;
};

/// A press, move, release, double click or turn of the wheel; nothing for another event. A wheel
/// that turns sideways turns as with Shift.
std::optional<Mouse_Event> Mouse_Of(const QEvent& E, Wheel_Rest& Rest);
