// ui/edit/route_search.cpp - walking through the points of an object, and through the objects.
#include "ui/edit/route_search.h"

#include "core/host.h"
#include "core/model.h"
#include "ui/canvas/edit_state.h"
#include "ui/canvas/view.h"
#include "ui/edit/route_tools.h"

namespace {

bool Is_On_Canvas(const Pt& P) {
    const Pic_Px At = Map_To_Pic({P.X, P.Y});
    return At.X >= 0.0 && At.X < Pic_Width && At.Y >= 0.0 && At.Y < Pic_Height;
}

void Next_Point() {
    const Obj& O = Tab_Obj[Sel_Obj];
    if (O.Nb_Pts == 1) return;
    const Long P = Sel_Pt == O.Last_Pt ? O.First_Pt : Tab_Pt[Sel_Pt].Next;
    Tool_Cancel();
    Tool_Cancel();
    Tool_Clear();
    if (!Is_On_Canvas(Tab_Pt[P])) View_Center_On_Point(Tab_Pt[P]);
    Hold_Point(P);
    View_Redraw();
    The_Host().Set_Focus("Pic");
}

// The next one with points, from Start on and round to before it; 0 when there is none.
Long Object_With_Points(Long Start) {
    Long I = Start;
    do {
        if (Tab_Obj[I].Nb_Pts != 0) return I;
        I = I == Nb_Obj ? First_Obj : I + 1;
    } while (I != Start);
    return 0;
}

void Next_Object() {
    if (Nb_Obj < First_Obj) return;
    const bool Goes_On = Obj_Selected != 0 && Sel_Obj != Nb_Obj;
    const Long I = Object_With_Points(Goes_On ? Sel_Obj + 1 : First_Obj);
    if (I == 0) return;
    if (Tool_Armed != 0) Tool_Clear();
    Select_Object(I);
    View_Center_On_Point(Tab_Pt[Tab_Obj[I].First_Pt]);
    View_Redraw();
    The_Host().Set_Focus("Pic");
}

}  // namespace

void Search_Next() {
    if (Obj_Selected != 0 && Pt_Selected != 0) return Next_Point();
    Next_Object();
}
