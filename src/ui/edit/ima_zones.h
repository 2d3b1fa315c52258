// ui/edit/ima_zones.h - where on a texture's rectangle the mouse is, and what a drag there does.
#pragma once

#include <optional>

#include "ui/canvas/edit_state.h"
#include "ui/canvas/view.h"

struct Ima_Hit {
    Ima_Zones Zone = Ima_Zones::None;
    Pointer_Shape Pointer = Pointer_Shape::Cross;
    bool Is_Hot() const { return Zone != Ima_Zones::None; }
};

/// The zone of a rectangle, in canvas pixels, that At lies in. Edges and corners reach 3 pixels
/// to both sides.
Ima_Hit Ima_Hit_Zone(Pic_Px At, const Rect_Pix& Rect);

/// The rectangle after a step of a drag by whole map pixels. At a corner both sides change by the
/// same size. Nothing when it would turn the rectangle inside out.
std::optional<Rect_Pix> Ima_Dragged(const Rect_Pix& Rect, Ima_Zones Zone, Long Step_X, Long Step_Y);
