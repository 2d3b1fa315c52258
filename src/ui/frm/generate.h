// ui/frm/generate.h - the generation as the main form starts it.
#pragma once

/// Generates the scenery of the open project. With ShowVTP1L 1 the canvas shows how its polygons
/// are taken apart: what the split takes off in red, what the cut leaves in green.
void Generate_In_View();
