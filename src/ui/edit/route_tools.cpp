// ui/edit/route_tools.cpp - the tools of Mode_Route.
#include "ui/edit/route_tools.h"

#include "ui/canvas/edit_state.h"

void Tool_Cancel() {}

void Tool_Clear() {
    Pending_New = Pending_Select = 0;
    Tool_Insert = Tool_Extend = Tool_Sel_Point = 0;
    Tool_Armed = Pt_Fresh = 0;
}

void Tool_Leave() {
    Tool_Cancel();
    Tool_Cancel();
}

void Route_Reset() {
    Tool_Clear();
    Last_Obj_Set = 0;
    Obj_Selected = 0;
    Sel_Obj = 0;
    Pt_Selected = 0;
}

void Route_Leave() {
    if (Mode_Route != 0) {
        Tool_Cancel();
        Tool_Cancel();
    }
    Route_Reset();
}
