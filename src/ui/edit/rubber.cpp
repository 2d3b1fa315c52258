// ui/edit/rubber.cpp - rubber bands of drawing, which survive redraw, scroll and zoom.
#include "ui/edit/rubber.h"

#include <algorithm>

#include "core/model.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/objects_draw.h"
#include "ui/canvas/surface.h"

namespace {

constexpr Long Red = 0xFF0000;

Pix Place_Of(Long P) {
    return {Tab_Pt[P].X, Tab_Pt[P].Y};
}

void Stretch(Overlay_Line& Band, Long P, Pic_Px To, Line_Style Style) {
    const std::optional<Line_Px> At = Line_On_Canvas(Map_To_Pic(Place_Of(P)), To);
    Band = {.At = At.value_or(Line_Px{}), .Colour = Red, .Visible = true, .Style = Style};
    The_Surface().Overlay_Changed();
}

}  // namespace

void Rubber_1(Long P, Pic_Px To) {
    Stretch(The_Overlay.Ln1, P, To, Line_Style::Solid);
}

void Rubber_2(Long P, Pic_Px To) {
    Stretch(The_Overlay.Ln2, P, To, Line_Style::Solid);
}

void Rubber_Dot(Long P, Pic_Px To) {
    Stretch(The_Overlay.Ln1, P, To, Line_Style::Dashed);
}

// Its place is that of its top left, rounded.
void Mark_Point(Long P) {
    constexpr Long Radius = 5;
    constexpr Double Far = 1e8;  // no place for a pixel beyond
    const Pic_Px At = Map_To_Pic(Place_Of(P));
    Overlay_Circle& C = The_Overlay.Cercle;
    C.X = Round_Lng(std::clamp(At.X - Radius, -Far, Far)) + Radius;
    C.Y = Round_Lng(std::clamp(At.Y - Radius, -Far, Far)) + Radius;
    C.Visible = true;
    The_Surface().Overlay_Changed();
}

void Rubbers_Hide() {
    The_Overlay.Ln1.Visible = The_Overlay.Ln2.Visible = false;
    The_Surface().Overlay_Changed();
}

void Mark_Hide() {
    The_Overlay.Cercle.Visible = false;
    The_Surface().Overlay_Changed();
}

void Rubber_Neighbours(Pic_Px To) {
    const Obj& O = Tab_Obj[Sel_Obj];
    if (O.Nb_Pts == 1) return Rubber_Dot(Sel_Pt, To);
    if (Sel_Pt == O.First_Pt) return Rubber_1(Pt_Next, To);
    Rubber_1(Pt_Prev, To);
    if (Sel_Pt != O.Last_Pt) Rubber_2(Pt_Next, To);
}

void Rubbers_Follow_View() {
    const Overlay_Items& Items = The_Overlay;
    if (Obj_Selected == 0) return;
    const Pic_Px Mouse{Move_X, Move_Y};
    if (Items.Ln1.Visible) {
        if (Tool_Insert != 0 && Items.Ln2.Visible) {
            Rubber_1(Sel_Pt, Mouse);
            Rubber_2(Sel_Pt2, Mouse);
        } else if (Tool_Extend != 0) {
            Rubber_1(Sel_Pt, Mouse);
        } else if (Tool_Sel_Point != 0) {
            Rubber_Neighbours(Mouse);
        }
    }
    if (Items.Cercle.Visible) Mark_Point(Sel_Pt);
}
