// ui/canvas/objects_draw.h - the drawn objects on the canvas.
#pragma once

#include <functional>
#include <optional>

#include "ui/canvas/surface.h"

/// Paints the segments of every object that can be seen, in the order of Tab_Obj, with the pen
/// that Pen_Of gives for its row; one without a pen is left out, as is one of a single point.
/// What lies wholly outside the canvas is not handed to the surface and costs next to nothing.
void Objects_Draw(const std::function<std::optional<Pen>(Long Row)>& Pen_Of);
