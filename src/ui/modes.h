// ui/modes.h - the eight editing modes: what the canvas shows and what the mouse means.
#pragma once

#include <functional>

#include "core/numbers.h"
#include "core/resets.h"
#include "ui/events.h"

/// One is on at a time, or none.
struct Mode_Flags {
    Int Mode_Route = 0;   // objects
    Int Mode_Area = 0;    // data of Cells
    Int Mode_Cell = 0;    // data of Areas
    Int Mode_Excl = 0;    // exclusions
    Int Mode_LC = 0;      // land classes
    Int Mode_WC = 0;      // water classes
    Int Mode_Ima = 0;     // textures
    Int Mode_PtGrid = 0;  // altitude points
    bool operator==(const Mode_Flags&) const = default;
};

/// The cancel flags of dialogs that a double click opens: set before, cleared by their Ok.
struct Dialog_Flags {
    Int Area_Cancelled = 1;
    Int Excl_Cancelled = 1;
    Int LC_Cancelled = 1;
    Int WC_Cancelled = 1;
};

/// What the mouse and the keys do in the modes that draw, and the tools that go with them. Each
/// mode's own file puts its routines in here; a call that nobody has put in has no effect.
struct Mode_Calls {
    std::function<void(const Mouse_Event&)> Route_Mouse, Ima_Mouse, PtGrid_Mouse;
    std::function<void()> Route_Double_Click, Ima_Double_Click;
    std::function<bool(Key_Event)> Route_Key, Ima_Key, PtGrid_Key;
    std::function<void()> Tool_Cancel;  // one step back in drawing
    std::function<void()> Flight_Open;  // the recorder of flights
    std::function<void()> Cmd_New_Route, Cmd_Sel_Route, Cmd_Sel_Pt_Route, Cmd_Ins_Pt_Route,
        Cmd_Extr_Pt_Route, Cmd_Sup_Route_Ou_Pt, Cmd_Tabul;
    std::function<void()> Cmd_New_Ima, Cmd_Sel_Ima, Cmd_Sel_Crb_Ima;
};

inline Mode_Flags The_Modes;
inline Dialog_Flags The_Dialog_Flags;
inline Mode_Calls The_Mode_Calls;

inline Int& Mode_Route = The_Modes.Mode_Route;
inline Int& Mode_Area = The_Modes.Mode_Area;
inline Int& Mode_Cell = The_Modes.Mode_Cell;
inline Int& Mode_Excl = The_Modes.Mode_Excl;
inline Int& Mode_LC = The_Modes.Mode_LC;
inline Int& Mode_WC = The_Modes.Mode_WC;
inline Int& Mode_Ima = The_Modes.Mode_Ima;
inline Int& Mode_PtGrid = The_Modes.Mode_PtGrid;
inline Int& Area_Cancelled = The_Dialog_Flags.Area_Cancelled;
inline Int& Excl_Cancelled = The_Dialog_Flags.Excl_Cancelled;
inline Int& LC_Cancelled = The_Dialog_Flags.LC_Cancelled;
inline Int& WC_Cancelled = The_Dialog_Flags.WC_Cancelled;

void Mode_Clear();
/// The buttons of no mode, and Mode_Clear.
void Tool_Bar_Reset();
/// Mode_Area, as when a project has become ready; nothing is painted.
void Mode_Area_On();
/// Ends a drawing in progress; nothing is selected afterwards.
void Route_Leave();

/// The buttons that enter a mode. A polygon outside its texture keeps the old mode, after
/// message 130; only Cmd_TrtIma goes without that check.
void Cmd_TrtArea();
void Cmd_TrtCell();
void Cmd_Excl_Areas();
void Cmd_LandClass();
void Cmd_WaterClass();
void Cmd_Saisie_Routes();
void Cmd_TrtMesh();
void Cmd_TrtIma();
/// Leaves the mode and opens the recorder of flights.
void Cmd_FSUIPC();

/// A double click at the mouse's position, as the mode that is on takes it: the dialogs of
/// squares open, and the canvas is painted anew after their Ok.
void Pic_Double_Click();

/// What the mouse does on the canvas. Without Edit_On nothing happens.
void Pic_Mouse(const Mouse_Event& E);

void Modes_Reset();
inline const bool Modes_Are_Reset = At_Reset(Modes_Reset);
