// ui/edit/square_drag.h - dragging with Shift held over many squares.
#pragma once

#include <optional>

#include "geo/calibration.h"
#include "ui/canvas/square_block.h"
#include "ui/form/events.h"

// Of the left button; a rectangle follows the mouse meanwhile.
void Square_Drag_Press(const Mouse_Event& E);
void Square_Drag_Move(const Mouse_Event& E);
/// Ends a drag. The squares under the rectangle as far as they belong to the work grid, found by
/// their pixels; nothing without a drag, or after one that hardly moved.
std::optional<Square_Block> Square_Drag_Release(const Mouse_Event& E, Cell_Pos (*Square_At)(Pix));
/// Escape gives a drag up.
bool Square_Drag_Key(Key_Event K);
void Square_Drag_Cancel();
