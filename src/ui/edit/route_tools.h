// ui/edit/route_tools.h - the tools of Mode_Route, as a state machine over The_Route.
#pragma once

#include "core/numbers.h"

/// One step back in drawing, as Esc does. Does nothing without Edit_On.
void Tool_Cancel();
/// No tool.
void Tool_Clear();
/// Two steps back; the object that another tool leaves behind is painted plain.
void Tool_Leave();
/// No tool and nothing selected.
void Route_Reset();
/// Ends a drawing in progress; nothing is selected afterwards.
void Route_Leave();

/// Object I, or no object, is the selected one, and no point of it.
void Select_Object(Long I);
void Select_No_Object();
void Select_Point(Long P);
/// Point P of the selected object waits to be grabbed. No other tool may be on.
void Hold_Point(Long P);

/// Frees the points that deletions have left behind when they are more than Most; what is selected
/// stays so.
void Points_Tidy(Long Most = 1'000'000);

// The buttons, which are in reach in Mode_Route alone.
void Cmd_New_Route();
void Cmd_Sel_Route();
void Cmd_Sel_Pt_Route();
void Cmd_Extr_Pt_Route();
void Cmd_Ins_Pt_Route();
