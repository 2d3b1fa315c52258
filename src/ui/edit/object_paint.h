// ui/edit/object_paint.h - objects as Mode_Route shows them: by kind, and red when selected.
#pragma once

#include "core/numbers.h"

#include "ui/canvas/surface.h"

struct Obj;

/// What an object of that kind is painted with when it is not selected.
Pen Plain_Pen(const Obj& O);

/// Object I in the colour of its kind, or in red; a small block when it has one point.
void Obj_Paint_Plain(Long I);
void Obj_Paint_Red(Long I);
/// All objects, the selected one in red.
void Obj_Paint_All();
/// The segment from point P to the last press, as it is laid.
void Segment_Paint_Laid(Long P);
