// qt/input.h - Qt's keys and mouse events as the program sees them.
#pragma once

#include <optional>

#include "ui/form/events.h"

class QEvent;
class QKeyEvent;

/// The key; Code is 0 for one that the program has no name for.
Key_Event Key_Of(const QKeyEvent& E);

/// A press, move, release, double click or turn of the wheel; nothing for another event.
/// Wheel_Rest keeps the part of a wheel step that is not turned yet.
std::optional<Mouse_Event> Mouse_Of(const QEvent& E, int& Wheel_Rest);
