// ui/edit/modes.h - the eight editing modes, a row each: all in which they differ.
#pragma once

#include <array>
#include <span>

#include "ui/canvas/edit_state.h"
#include "ui/form/events.h"
#include "ui/form/wording.h"

/// What a mode is. Redraw, mouse, keys and tool bar look it up here; what a mode has no use for
/// stays null.
struct Mode_Row {
    const char* Name;       // as it is told
    Int Mode_Flags::*Flag;  // set while it is on
    const char* Button;     // enters it; disabled and drawn pressed while it is on
    std::span<const char* const> Tools = {};  // enabled while it is on

    bool (*May_Enter)() = nullptr;  // asked first, when the mode before is still on
    void (*Leave_Former)();         // ends what the mode before was doing
    bool Checks_Textures = true;    // a polygon outside its texture keeps the mode before
    void (*On_Enter)() = nullptr;   // once it is on, before the redraw

    void (*Paint)();                              // above the map, in a redraw
    void (*Press)(const Mouse_Event&) = nullptr;  // of the left or the right button
    void (*Move)(const Mouse_Event&) = nullptr;
    void (*Release)(const Mouse_Event&) = nullptr;
    void (*Away)(const Mouse_Event&) = nullptr;
    void (*Double_Click)() = nullptr;       // of the left button, or its stand-in by a key
    bool (*Key)(Key_Event) = nullptr;       // on the canvas; true when it was used
    bool (*Form_Key)(Key_Event) = nullptr;  // without Alt, before the canvas sees it; the same
    void (*Delete)() = nullptr;             // Cmd_Sup_Route_Ou_Pt
    void (*Search)() = nullptr;             // Cmd_Tabul
    Wording (*Hint)() = nullptr;            // what the next click does
    Wording Help = {};                      // what it is for, some short lines of the help page
};

// Each is filled by the file of its mode.
extern const Mode_Row Row_Of_Route, Row_Of_Area, Row_Of_Cell, Row_Of_Excl, Row_Of_LC, Row_Of_WC,
    Row_Of_Ima, Row_Of_PtGrid;

inline constexpr std::array<const Mode_Row*, 8> Mode_Rows{
    &Row_Of_Ima, &Row_Of_Excl, &Row_Of_Area,  &Row_Of_Cell,
    &Row_Of_LC,  &Row_Of_WC,   &Row_Of_Route, &Row_Of_PtGrid};

/// The mode that is on, or null.
const Mode_Row* Mode_Now();

/// Enters a mode, as its button does. Nothing happens when the mode may not be entered or, after
/// message 130, when a polygon lies outside its texture.
void Mode_Enter(const Mode_Row& Row);

void Mode_Clear();
/// The buttons of no mode, and Mode_Clear.
void Tool_Bar_Reset();
/// Mode_Area, as when a project has become ready; nothing is painted.
void Mode_Area_On();
/// Mode_Route, as when a flight has been recorded; the same.
void Mode_Route_On();

/// Leaves the mode and opens the recorder of flights; refused as the entering of a mode is.
void Cmd_FSUIPC();
/// Delete and search, as the mode that is on has them.
void Cmd_Sup_Route_Ou_Pt();
void Cmd_Tabul();

/// Tells in L_Hint what the next click does. Called after each act that may change it.
void Hint_Show();

/// A double click at the mouse's position.
void Pic_Double_Click();

/// What the mouse does on the canvas. Without Edit_On nothing happens.
void Pic_Mouse(const Mouse_Event& E);

/// A key that reaches the canvas, as the mode that is on takes it. Without Edit_On nothing
/// happens.
bool Pic_Key(Key_Event K);

/// Gives the canvas what it asks of the modes.
void Modes_Install();
