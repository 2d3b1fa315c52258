// ui/canvas/edit_state.h - what is being edited: the mode that is on, and what is selected.
//
// It stands below modes and dialogs, since both read it and painting follows it.
#pragma once

#include "core/host.h"
#include "core/numbers.h"
#include "core/resets.h"

/// What the canvas shows and what the mouse means. One is on at a time, or none.
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

/// Objects and points: what is being drawn, and what of it is selected. Rows are those of
/// Tab_Obj and Tab_Pt. At most one of the first five flags is set.
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
    Long Sel_Pt2 = 0;        // the other end of the segment chosen for an insertion
    Int Insert_Closing = 0;  // that segment is the one from the last point back to the first
    Int Pt_Fresh = 0;        // the selected point is not being moved
    Long Pt_Next = 0;        // while it is: the neighbours that it is tied to
    Long Pt_Prev = 0;
    Int Last_Obj_Set = 0;
    Long Last_Obj = 0;  // to be painted plain when another tool is chosen
};

/// A rectangle in map pixels.
struct Rect_Pix {
    Double Left = 0.0, Top = 0.0, Right = 0.0, Bottom = 0.0;
    bool operator==(const Rect_Pix&) const = default;
};

/// Where on a texture's rectangle the mouse is. The first letter is the edge across (H the top, B
/// the bottom) or II the inside; the second the one along (G the left, D the right).
enum class Ima_Zones { None, II, HG, BG, GG, HD, BD, DD, HH, BB };

/// What the next left press or Frm_Ima is about.
enum class Ima_Dialogs { None, Create, Edit };

/// Textures: what is selected, and what is being done to it. Sel_Ima is a row of Tab_Ima,
/// Ima_Poly one of Tab_Obj.
struct Ima_State {
    Int Ima_Pick = 0;       // the next double click chooses a texture,
    Int Ima_Pick_Poly = 0;  // or, with this one, the polygon to link
    Int Ima_Selected = 0;
    Long Sel_Ima = 0;
    Ima_Dialogs Ima_Dialog = Ima_Dialogs::None;
    Int Ima_Hot = 0;  // the mouse is on the selected rectangle
    Pointer_Shape Ima_Pointer = Pointer_Shape::Cross;
    Ima_Zones Ima_Zone = Ima_Zones::None;
    Int Ima_Drag = 0;                             // the rectangle is being dragged,
    Rect_Pix Drag;                                // to here;
    Double Drag_Last_X = 0.0, Drag_Last_Y = 0.0;  // where the last step took effect, map pixels
    Int Ima_Poly_Selected = 0;
    Long Ima_Poly = 0;  // the polygon chosen for linking
};

inline Mode_Flags The_Modes;
inline Route_State The_Route;
inline Ima_State The_Ima;

inline Int& Mode_Route = The_Modes.Mode_Route;
inline Int& Mode_Area = The_Modes.Mode_Area;
inline Int& Mode_Cell = The_Modes.Mode_Cell;
inline Int& Mode_Excl = The_Modes.Mode_Excl;
inline Int& Mode_LC = The_Modes.Mode_LC;
inline Int& Mode_WC = The_Modes.Mode_WC;
inline Int& Mode_Ima = The_Modes.Mode_Ima;
inline Int& Mode_PtGrid = The_Modes.Mode_PtGrid;

inline Int& Pending_New = The_Route.Pending_New;
inline Int& Pending_Select = The_Route.Pending_Select;
inline Int& Tool_Insert = The_Route.Tool_Insert;
inline Int& Tool_Extend = The_Route.Tool_Extend;
inline Int& Tool_Sel_Point = The_Route.Tool_Sel_Point;
inline Int& Tool_Armed = The_Route.Tool_Armed;
inline Int& Obj_Selected = The_Route.Obj_Selected;
inline Long& Sel_Obj = The_Route.Sel_Obj;
inline Int& Pt_Selected = The_Route.Pt_Selected;
inline Long& Sel_Pt = The_Route.Sel_Pt;
inline Long& Sel_Pt2 = The_Route.Sel_Pt2;
inline Int& Insert_Closing = The_Route.Insert_Closing;
inline Int& Pt_Fresh = The_Route.Pt_Fresh;
inline Long& Pt_Next = The_Route.Pt_Next;
inline Long& Pt_Prev = The_Route.Pt_Prev;
inline Int& Last_Obj_Set = The_Route.Last_Obj_Set;
inline Long& Last_Obj = The_Route.Last_Obj;

inline Int& Ima_Pick = The_Ima.Ima_Pick;
inline Int& Ima_Pick_Poly = The_Ima.Ima_Pick_Poly;
inline Int& Ima_Selected = The_Ima.Ima_Selected;
inline Long& Sel_Ima = The_Ima.Sel_Ima;
inline Ima_Dialogs& Ima_Dialog = The_Ima.Ima_Dialog;
inline Int& Ima_Hot = The_Ima.Ima_Hot;
inline Pointer_Shape& Ima_Pointer = The_Ima.Ima_Pointer;
inline Ima_Zones& Ima_Zone = The_Ima.Ima_Zone;
inline Int& Ima_Drag = The_Ima.Ima_Drag;
inline Double& Drag_Last_X = The_Ima.Drag_Last_X;
inline Double& Drag_Last_Y = The_Ima.Drag_Last_Y;
inline Int& Ima_Poly_Selected = The_Ima.Ima_Poly_Selected;
inline Long& Ima_Poly = The_Ima.Ima_Poly;

inline const bool Edit_State_Is_Reset = At_Reset([] {
    The_Modes = {};
    The_Route = {};
    The_Ima = {};
});
