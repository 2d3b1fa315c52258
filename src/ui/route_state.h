// ui/route_state.h - what is being drawn, and what of it is selected.
#pragma once

#include "core/numbers.h"
#include "core/resets.h"

/// Rows are those of Tab_Obj and Tab_Pt. At most one of the first five flags is set.
struct Route_State {
    Int Pending_New = 0;     // the next press creates an object
    Int Pending_Select = 0;  // the next double click selects one
    Int Tool_Insert = 0;
    Int Tool_Extend = 0;
    Int Tool_Sel_Point = 0;
    Int Tool_Armed = 0;  // the tool has not been pointed at its target yet
    Int Obj_Selected = 0;
    Long Sel_Obj = 0;
    Int Pt_Selected = 0;
    Long Sel_Pt = 0;
    Int Pt_Fresh = 0;  // the selected point is not being moved
    Int Last_Obj_Set = 0;
    Long Last_Obj = 0;  // to be painted plain when another tool is chosen
};

inline Route_State The_Route;

inline Int& Obj_Selected = The_Route.Obj_Selected;
inline Long& Sel_Obj = The_Route.Sel_Obj;
inline Int& Pending_Select = The_Route.Pending_Select;

/// No tool.
void Tool_Clear();
/// No tool and nothing selected.
void Route_Reset();

inline const bool Route_State_Is_Reset = At_Reset([] { The_Route = {}; });
