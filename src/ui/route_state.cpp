// ui/route_state.cpp - back to nothing selected.
#include "ui/route_state.h"

void Tool_Clear() {
    Route_State& R = The_Route;
    R.Pending_New = R.Pending_Select = 0;
    R.Tool_Insert = R.Tool_Extend = R.Tool_Sel_Point = 0;
    R.Tool_Armed = R.Pt_Fresh = 0;
}

void Route_Reset() {
    Tool_Clear();
    The_Route.Last_Obj_Set = 0;
    The_Route.Obj_Selected = 0;
    The_Route.Sel_Obj = 0;
    The_Route.Pt_Selected = 0;
}
