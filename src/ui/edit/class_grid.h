// ui/edit/class_grid.h - the squares of land and water classes on the canvas.
#pragma once

#include "gen/class_lists.h"

/// Works out the grid moved half a square north and west, and paints it with a square for each
/// record in view: the texture of its class while Show_Texture is on and the simulator has it,
/// else a hatch.
void Class_Grid_Draw(Class_Sort Sort);

/// Lets the textures and lists that were read be read anew: files may have changed.
void Class_Pictures_Forget();
