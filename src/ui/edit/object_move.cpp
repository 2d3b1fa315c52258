// ui/edit/object_move.cpp - the arrow keys that move the selected object.
#include "ui/edit/object_move.h"

#include <algorithm>

#include "core/attr_kinds.h"
#include "core/model.h"
#include "core/model_ops.h"
#include "gen/texture_bounds.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/view.h"

namespace {

// A polygon painted with a texture may not be moved out of it.
bool Leaves_Its_Texture(const Obj& O, Double DX, Double DY) {
    if (!Is_Special_Vtp1(O.Attr) || O.Attr.Link_Ima == 0) return false;
    Texture_Bounds Bounds;
    for (const Ima& M : Tab_Ima.Rows())
        if (M.Num == O.Attr.Link_Ima) Bounds.Take(M);
    return Bounds.Misses(O, DX, DY);
}

void Move_Object(Double DX, Double DY) {
    const Obj& O = Tab_Obj[Sel_Obj];
    if (O.Nb_Pts == 0 || Leaves_Its_Texture(O, DX, DY)) return;
    Obj_Move(Sel_Obj, DX, DY);
    View_Redraw();
}

}  // namespace

bool Object_Arrow_Key(Key_Event K) {
    if (Obj_Selected == 0 || Pending_Select != 0) return false;
    Double Pixels = 0.0;
    if ((K.Shift & Shift_Key) != 0)
        Pixels = 1.0;
    else if ((K.Shift & Ctrl_Key) != 0)
        Pixels = 5.0;
    else
        return false;
    const Double Step = Pixels / Zoom;
    switch (K.Code) {
        case Key_Up:
            Move_Object(0.0, -Step);
            return true;
        case Key_Down:
            Move_Object(0.0, Step);
            return true;
        case Key_Left:
            Move_Object(-Step, 0.0);
            return true;
        case Key_Right:
            Move_Object(Step, 0.0);
            return true;
        default:
            return false;
    }
}
