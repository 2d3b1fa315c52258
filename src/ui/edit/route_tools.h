// ui/edit/route_tools.h - the tools of Mode_Route, as a state machine over The_Route.
#pragma once

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
