// ui/view_redraw.cpp - the complete redraw, in the order that each mode wants.
#include "core/view_calls.h"
#include "ui/modes.h"
#include "ui/surface.h"
#include "ui/view.h"

namespace {

// Calls the mode's own routine, or paints what stands in for it.
void Paint(const std::function<void()>& Own, void (*Stand_In)()) {
    if (Own) return Own();
    Stand_In();
}

void Paint_Mode() {
    const Redraw_Calls& C = The_Redraw_Calls;
    if (Mode_Route != 0) {
        Grid_Draw();
        Paint(C.Route_Objects, Objects_Draw_Backdrop);
    } else if (Mode_Excl != 0 || Mode_Area != 0 || Mode_Cell != 0) {
        Grid_Draw();
        Objects_Draw_Backdrop();
    } else if (Mode_LC != 0 || Mode_WC != 0) {
        Paint(C.Class_Squares, Grid_Draw);
        Objects_Draw_Backdrop();
    } else if (Mode_Ima != 0) {
        Paint(C.Ima_Textures, Objects_Draw_Backdrop);
    } else if (Mode_PtGrid != 0) {
        Paint(C.PtGrid_Grid, Grid_Draw);
        Objects_Draw_Backdrop();
        Call(C.PtGrid_Points);
    }
}

// The canvas has the cross while a mode is on.
Pointer_Shape Own_Shape() {
    return The_Modes == Mode_Flags{} ? Pointer_Shape::Normal : Pointer_Shape::Cross;
}

}  // namespace

void View_Redraw() {
    Surface& S = The_Surface();
    S.Set_Cursor(Pointer_Shape::Hourglass);
    S.Clear();
    Map_Blit_View();
    Paint_Mode();
    S.Refresh();
    S.Set_Cursor(Own_Shape());
}
