// ui/canvas/view_redraw.cpp - the complete redraw: the map, and above it what the mode wants.
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

void View_Redraw() {
    Surface& S = The_Surface();
    S.Set_Cursor(Pointer_Shape::Hourglass);
    S.Clear();
    Map_Blit_View();
    if (Map_Opacity < 100) S.Fade(Map_Opacity);
    if (Paint_Mode != nullptr) Paint_Mode();
    S.Refresh();
    S.Set_Cursor(The_View_State.Pointer);
}

void Canvas_Pointer(Pointer_Shape Shape) {
    The_View_State.Pointer = Shape;
    The_Surface().Set_Cursor(Shape);
}
