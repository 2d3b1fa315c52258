// core/view_calls.h - what the core asks of folders above it.
//
// Closing a project removes its map tiles and leaves the editing mode, but tiles and modes
// belong to folders that stand above the core. Each of them puts its routines in here when
// the program starts; a call that nobody has put in has no effect.
#pragma once

#include <functional>

struct View_Calls {
    std::function<void()> View_Redraw;     // repaints the canvas
    std::function<void()> View_Clear;      // clears the canvas and the pictures behind it
    std::function<void()> View_Reset;      // zoom 1.0 at offset 0
    std::function<void()> View_Keep;       // the open project's view is kept for its next opening
    std::function<void()> View_Take;       // the view is as it was kept
    std::function<void()> Bars_Follow;     // the scroll bars stand where the view is
    std::function<void()> Route_Reset;     // editing state: no tool, nothing selected
    std::function<void()> Route_Leave;     // ends a drawing in progress
    std::function<void()> Mode_Leave;      // leaves the editing mode; may show message 130
    std::function<void()> Mode_Area_On;    // enters Mode_Area
    std::function<void()> Mode_Route_On;   // enters Mode_Route
    std::function<void()> Forms_Close;     // ends the forms that are open beside the main one
    std::function<void()> Window_Show;     // the main form is laid out and may come up
    std::function<void()> Apply_Language;  // rewords the main form
    std::function<bool()> Tiles_Build;     // cuts the map Carte; false when its format is refused
    std::function<void()> Tiles_Show;      // prepares the view from tiles that were cut before
    std::function<void()> Tiles_Remove;    // deletes the map's tiles
    std::function<void()> Ima_Load;        // prepares the pictures of Tab_Ima
    std::function<void()> Ima_Unload;      // drops the pictures of Tab_Ima
    std::function<void()> Ima_Clear;       // clears the texture selection and hides its lines
    std::function<void()> History_Show;    // what can be undone and done again is told
};

inline View_Calls The_View;

/// Calls F if somebody has put it in.
inline void Call(const std::function<void()>& F) {
    if (F) F();
}
