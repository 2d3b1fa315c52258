// ui/canvas/objects_draw.h - the drawn objects on the canvas.
#pragma once

#include <functional>
#include <optional>

#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

enum class Single_Points { Left_Out, As_Blocks };

/// Paints the segments of every object that can be seen, in the order of Tab_Obj, with the pen
/// that Pen_Of gives for its row; one without a pen is left out. Singles tells of those that have
/// one point: left out, or painted as a block of 3 by 3 pixels.
/// Without Show_Objects that is the selected one alone.
/// What lies wholly outside the canvas is not handed to the surface and costs next to nothing.
void Objects_Draw(const std::function<std::optional<Pen>(Long Row)>& Pen_Of,
                  Single_Points Singles = Single_Points::Left_Out);

/// Paints the object in that row of Tab_Obj above what stands on the surface: its segments, or
/// the block of its single point. Nothing when it has no points. Does not refresh.
void Object_Paint(Long Row, const Pen& With);

/// A line between two places of the canvas, rounded. Ends too far off for a whole pixel are brought
/// near along the line; nothing when none of it is near.
std::optional<Line_Px> Line_On_Canvas(Pic_Px A, Pic_Px B);
