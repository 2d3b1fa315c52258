// ui/edit/object_move.h - the arrow keys that move the selected object.
#pragma once

#include "ui/form/events.h"

/// Moves the selected object by 1 canvas pixel with Shift, by 5 with Ctrl; a polygon painted with
/// a texture stays inside it. True when the key was used.
bool Object_Arrow_Key(Key_Event K);
