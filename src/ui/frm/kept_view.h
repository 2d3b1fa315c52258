// ui/frm/kept_view.h - where each recent project was looked at, and what was shown, kept in the
// settings.
//
// View1 to View4 hold "ZOOM PAN_X PAN_Y PATH", the project left last first; Shown holds "MAP GRID
// TEXTURES PICTURES OBJECTS OPACITY". Only a program that keeps the view reads or writes them.
#pragma once

/// Keeps the view of the open project, if there is one.
void Kept_View_Keep();
/// Takes what is shown, and the view of the open project where one was kept; paints nothing.
void Kept_View_Take();
