// ui/edit/ima_tools.h - the tools of Mode_Ima: the selection of a texture and its lines.
#pragma once

#include "ui/canvas/edit_state.h"

/// Nothing is selected, picked or dragged.
void Ima_Clear();
/// Hides the four lines of the selected rectangle.
void Ima_Lines_Hide();
/// Both: the mode is left, or the selection with it.
void Ima_Leave();
/// Places the four lines on a rectangle and shows them.
void Ima_Lines_Show(const Rect_Pix& On_Map);

/// The rectangle of element I of Tab_Ima, in map pixels.
Rect_Pix Ima_Rect(Long I);
/// A rectangle of the map in canvas pixels.
Rect_Pix Ima_On_Canvas(const Rect_Pix& On_Map);

/// The commands of the tool bar. Without Mode_Ima they have no effect.
void Cmd_New_Ima();
void Cmd_Sel_Ima();
void Cmd_Sel_Crb_Ima();
