// ui/edit/object_paint.cpp - objects as Mode_Route shows them.
#include "ui/edit/object_paint.h"

#include "core/attr_kinds.h"
#include "core/model.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/objects_draw.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

constexpr Long Blue = 0x0000FF, Magenta = 0xFF00FF;
constexpr Pen Red{.Colour = 0xFF0000};

Long Plain_Colour(const Attr& A) {
    if (A.SurfShore == Surf_Line) return Magenta;
    if (A.SurfShore == Surf_Polygon && (A.LWM_VTP2 != Technique_LWM || A.Attrib != 0))
        return Magenta;
    return Blue;
}

}  // namespace

Pen Plain_Pen(const Obj& O) {
    return {.Colour = Plain_Colour(O.Attr)};
}

void Obj_Paint_Plain(Long I) {
    Object_Paint(I, Plain_Pen(Tab_Obj[I]));
    The_Surface().Refresh();
}

void Obj_Paint_Red(Long I) {
    Object_Paint(I, Red);
    The_Surface().Refresh();
}

void Obj_Paint_All() {
    Objects_Draw(
        [](Long I) { return Obj_Selected != 0 && I == Sel_Obj ? Red : Plain_Pen(Tab_Obj[I]); },
        Single_Points::As_Blocks);
}

void Segment_Paint_Laid(Long P) {
    const Pix From{Tab_Pt[P].X, Tab_Pt[P].Y};
    const std::optional<Line_Px> L = Line_On_Canvas(Map_To_Pic(From), {Click_X, Click_Y});
    if (!L) return;
    The_Surface().Line(*L, {.Colour = Red.Colour, .Width = 2});
    The_Surface().Refresh();
}
