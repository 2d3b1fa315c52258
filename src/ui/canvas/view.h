// ui/canvas/view.h - what part of the map the canvas shows, and the complete redraw.
//
// Canvas pixels are logical pixels, X right, Y down; map pixels are those of model.h.
#pragma once

#include "core/host.h"
#include "core/model.h"
#include "core/numbers.h"
#include "core/resets.h"
#include "geo/calibration.h"

/// A position on the canvas.
struct Pic_Px {
    Double X = 0.0;
    Double Y = 0.0;
    bool operator==(const Pic_Px&) const = default;
};

struct View_State {
    Double Zoom = 1.0;                // canvas pixels per map pixel
    Double Pan_X = 0.0, Pan_Y = 0.0;  // map pixels; 0 has the map's centre at the canvas's centre
    Long Pic_Width = 1, Pic_Height = 1;                 // the canvas, pixels; both odd
    Double View_Half_W = 0.5, View_Half_H = 0.5;        // half the canvas
    Double Map_Half_W = 0.0, Map_Half_H = 0.0;          // half the map
    Double Scroll_Range_X = 0.0, Scroll_Range_Y = 0.0;  // map pixels over the whole scroll bar
    bool Scroll_Guard = false;                          // the program itself sets the scroll bars
    bool Show_Bitmap = true;
    bool Show_Texture = false;
    bool Show_Grid = true;
    bool Show_Ima = true;                         // the pictures of textures laid on the map
    bool Show_Objects = true;                     // all objects, not only the selected one
    Int Map_Opacity = 100;                        // per cent
    Double Click_X = 0.0, Click_Y = 0.0;          // last press, held to the grid rectangle
    Double Click_Map_X = 0.0, Click_Map_Y = 0.0;  // the same on the map
    Double Move_X = 0.0, Move_Y = 0.0;            // last move, held to the grid rectangle
    Double Move_Map_X = 0.0, Move_Map_Y = 0.0;
    Long Mouse_Map_X = 0, Mouse_Map_Y = 0;  // the same, rounded
    Pic_Px Click_Raw, Move_Raw;             // press and move as they came, held to nothing
    bool Mouse_Off_Grid = false;            // the last move came from beyond the grid rectangle
    Pointer_Shape Pointer = Pointer_Shape::Normal;  // the canvas's own
};

inline View_State The_View_State;

inline Double& Zoom = The_View_State.Zoom;
inline Double& Pan_X = The_View_State.Pan_X;
inline Double& Pan_Y = The_View_State.Pan_Y;
inline Long& Pic_Width = The_View_State.Pic_Width;
inline Long& Pic_Height = The_View_State.Pic_Height;
inline Double& View_Half_W = The_View_State.View_Half_W;
inline Double& View_Half_H = The_View_State.View_Half_H;
inline Double& Map_Half_W = The_View_State.Map_Half_W;
inline Double& Map_Half_H = The_View_State.Map_Half_H;
inline Double& Scroll_Range_X = The_View_State.Scroll_Range_X;
inline Double& Scroll_Range_Y = The_View_State.Scroll_Range_Y;
inline bool& Scroll_Guard = The_View_State.Scroll_Guard;
inline bool& Show_Bitmap = The_View_State.Show_Bitmap;
inline bool& Show_Texture = The_View_State.Show_Texture;
inline bool& Show_Grid = The_View_State.Show_Grid;
inline bool& Show_Ima = The_View_State.Show_Ima;
inline bool& Show_Objects = The_View_State.Show_Objects;
inline Int& Map_Opacity = The_View_State.Map_Opacity;
inline Double& Click_X = The_View_State.Click_X;
inline Double& Click_Y = The_View_State.Click_Y;
inline Double& Click_Map_X = The_View_State.Click_Map_X;
inline Double& Click_Map_Y = The_View_State.Click_Map_Y;
inline Double& Move_X = The_View_State.Move_X;
inline Double& Move_Y = The_View_State.Move_Y;
inline Double& Move_Map_X = The_View_State.Move_Map_X;
inline Double& Move_Map_Y = The_View_State.Move_Map_Y;
inline Long& Mouse_Map_X = The_View_State.Mouse_Map_X;
inline Long& Mouse_Map_Y = The_View_State.Mouse_Map_Y;
inline Pic_Px& Click_Raw = The_View_State.Click_Raw;
inline Pic_Px& Move_Raw = The_View_State.Move_Raw;
inline bool& Mouse_Off_Grid = The_View_State.Mouse_Off_Grid;

inline constexpr Long Scroll_Max = 32000;
inline constexpr Long Scroll_Small = 200;
inline constexpr Long Scroll_Large = 2000;

/// A point of the canvas on the map, and the other way round.
Pix Pic_To_Map(Pic_Px P);
Pic_Px Map_To_Pic(Pix P);

/// Zoom 1 at pan 0, both scroll bars at 0, nothing hidden.
void View_Reset();
/// Puts the scroll bars where the view is, as far as they reach.
void Scroll_Bars_Follow();
/// The map's top left at the canvas's, at zoom 1; scroll bars follow. Run when the map is known.
void View_Center_Map();
/// The map point P at the canvas's centre; scroll bars follow.
void View_Center_On_Point(const Pt& P);
/// Takes a view as it once was, held to what can be asked for and to where the
/// canvas still reaches the map; scroll bars follow.
void View_Put(Double New_Zoom, Double New_Pan_X, Double New_Pan_Y);
/// The canvas has a new size in pixels; an even one becomes 1 smaller, less than 1 becomes 1.
/// The map point at its middle stays there. Repaints when a project is open.
void View_Resize(Long Width, Long Height);

/// Scroll bars, from their handlers: no effect while Scroll_Guard is on.
void HScroll_Change(Long Value);
void VScroll_Change(Long Value);

/// The commands of the tool bar.
void Cmd_ZPlus();
void Cmd_ZMoins();
void Cmd_AffBmp();
void Cmd_AffTexture();
void Cmd_Grid();
void Cmd_ColourGrid();

/// Zoom New_Zoom, held to what the steps reach, with the canvas's middle kept; repaints.
void View_Zoom_To(Double New_Zoom);
/// The whole map as large as the canvas has room for it, in its middle; repaints.
void View_Fit();
/// The map's top left at the canvas's, at the zoom that is; repaints.
void View_Home();

/// One step of the mouse wheel at P, away from the user (+1) or towards (-1): the same steps as
/// the buttons, with the map point under P kept there. It stops before the work grid would be
/// less than 200 pixels wide.
void View_Wheel(Int Steps, Pic_Px P);
/// One step of the wheel sideways, to the left (+1) or to the right (-1).
void View_Wheel_Sideways(Int Steps);
/// Moves the map by (DX, DY) canvas pixels, as when it is dragged; scroll bars follow.
void View_Drag(Double DX, Double DY);
/// Shows what lies (DX, DY) canvas pixels further, as far as the canvas's middle is on the map.
void View_Scroll(Double DX, Double DY);

/// Clears the canvas and paints map, grid, marks and objects anew, as the mode that is on wants
/// it. The overlay items stay as they are.
void View_Redraw();

/// What the redraw paints above the map: put in by the modes, which stand above this folder.
inline void (*Paint_Mode)() = nullptr;

/// The canvas's own pointer, which a redraw and the hourglass leave as it was.
void Canvas_Pointer(Pointer_Shape Shape);

/// Paints the visible part of the map from its tiles.
void Map_Blit_View();
/// Which records of squares the grid shows as hatches.
enum class Grid_Marks { None, Areas, Lod8s, Excls };
/// Works out the visible grid and paints it with the marks on squares.
void Grid_Draw(Grid_Marks Marks = Grid_Marks::None);

/// The parts of Grid_Draw. Squares are those of the grid, or lie half a square further to the
/// west and north, so that each has a corner of the grid in its middle.
enum class Grid_Place { On_Cells, On_Corners };
/// Fills The_Grid_In_View; paints nothing.
void Grid_Find(Grid_Place Where = Grid_Place::On_Cells);
/// Paints the lines of The_Grid_In_View.
void Grid_Draw_Lines();
/// Every object with two points or more, in the backdrop style.
void Objects_Draw_Backdrop();

/// The part of the grid in view, as Grid_Find last found it: columns and rows from 1, 0 in
/// First_Col or First_Row when there is none; canvas pixels of the first and last line, and
/// of a Cell.
struct Grid_In_View {
    Long First_Col = 0, Last_Col = 0, First_Row = 0, Last_Row = 0;
    Double Grid_X0 = 0.0, Grid_X1 = 0.0, Grid_Y0 = 0.0, Grid_Y1 = 0.0;
    Double Cell_W = 0.0, Cell_H = 0.0;
};
inline Grid_In_View The_Grid_In_View;

/// Follows the mouse at P: fills Move_X and its kin and the read-out labels, or empties the
/// labels when P lies outside the grid rectangle.
void Mouse_Read_Out(Pic_Px P);
/// The same for a press: fills Click_X and its kin.
void Mouse_Click_At(Pic_Px P);

/// Must be called by whoever changes points of Tab_Pt or rows of Tab_Obj other than through
/// model_ops.h: the redraw keeps the boxes of objects from one time to the next.
void Objects_Changed();

/// View and overlay items as at the start of the program.
void View_State_Reset();
inline const bool View_State_Is_Reset = At_Reset(View_State_Reset);
