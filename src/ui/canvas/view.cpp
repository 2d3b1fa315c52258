// ui/canvas/view.cpp - what part of the map the canvas shows: zoom, pan, scroll bars.
#include "ui/canvas/view.h"

#include <algorithm>
#include <cmath>
#include <limits>

#include "core/host.h"
#include "core/program.h"
#include "ui/canvas/surface.h"

namespace {

constexpr Double Zoom_Step = 1.15;
constexpr Double Zoom_Last = 20.0;  // the last one that still steps up
constexpr Double Zoom_Snap = 0.01;  // this near to 1 it is 1
constexpr Double Zoom_Most = Zoom_Last * Zoom_Step;
constexpr Double Zoom_Least_Set = 0.001;    // that can be asked for
constexpr Double Grid_Least_Width = 200.0;  // the wheel goes no further out
constexpr Double Wheel_Side_Step = 60.0;    // canvas pixels
constexpr Double Scroll_Middle = Scroll_Max / 2.0;

void Set_Bar(const char* Bar, Long Value) {
    The_Host().Set_Value(Bar, Value);
}

// The scroll bars run over twice the work grid, as it was when they were last set.
void Find_Scroll_Ranges() {
    Scroll_Range_X = (XGridSE - XGridNW) * 2.0;
    Scroll_Range_Y = (YGridSE - YGridNW) * 2.0;
}

void Find_Map_Halves() {
    Map_Half_W = Map_Width / 2.0;
    Map_Half_H = Map_Height / 2.0;
}

Long Bar_Value(Double Pan, Double Range) {
    return std::clamp(Round_Lng(Scroll_Middle - Pan * Scroll_Max / Range), Long{0}, Scroll_Max);
}

void Focus_To_Pic() {
    The_Host().Set_Focus("Pic");
}

void Redraw_And_Focus() {
    View_Redraw();
    Focus_To_Pic();
}

void Snap_To_One() {
    if (std::fabs(Zoom - 1.0) < Zoom_Snap) Zoom = 1.0;
}

// Both tell whether Zoom has stepped.
bool Zoom_Up() {
    Snap_To_One();
    if (!(Zoom <= Zoom_Last)) return false;
    Zoom *= Zoom_Step;
    return true;
}

// There is no lower limit but that of the number itself.
bool Zoom_Down() {
    Snap_To_One();
    if (Zoom / Zoom_Step < std::numeric_limits<Double>::min()) return false;
    Zoom /= Zoom_Step;
    return true;
}

bool Wheel_May_Go_Out() {
    return !((XGridSE - XGridNW) * Zoom / Zoom_Step < Grid_Least_Width);
}

// Never further off than it is, and never beyond the map's edge.
Double Pan_Held(Double Wanted, Double Now, Long Map_Size) {
    const Double Most = std::max(Map_Size / 2.0, std::fabs(Now));
    return Wanted < -Most ? -Most : Wanted > Most ? Most : Wanted;
}

Long Odd_Size(Long Size) {
    return std::max(Long{1}, Size % 2 == 0 ? Size - 1 : Size);
}

void Toggle(bool& Flag) {
    Flag = !Flag;
    Redraw_And_Focus();
}

void Scroll_To(Double& Pan, const Double& Range, Long Value) {
    if (Scroll_Guard) return;
    Pan = (Scroll_Middle - Value) * Range / Scroll_Max;
    Redraw_And_Focus();
}

}  // namespace

Pix Pic_To_Map(Pic_Px P) {
    return {(Map_Width * Zoom / 2.0 + P.X - View_Half_W - Pan_X * Zoom) / Zoom,
            (Map_Height * Zoom / 2.0 + P.Y - View_Half_H - Pan_Y * Zoom) / Zoom};
}

Pic_Px Map_To_Pic(Pix P) {
    const Pix Origin = Pic_To_Map({0.0, 0.0});
    return {(P.X - Origin.X) * Zoom, (P.Y - Origin.Y) * Zoom};
}

void View_Reset() {
    Zoom = 1.0;
    Pan_X = Pan_Y = 0.0;
    Show_Bitmap = Show_Grid = Show_Ima = Show_Objects = true;
    Scroll_Guard = true;
    Set_Bar("HScroll", 0);
    Set_Bar("VScroll", 0);
    Scroll_Guard = false;
}

// The bars stop at their ends; the pan does not.
void Scroll_Bars_Follow() {
    Scroll_Guard = true;
    Find_Scroll_Ranges();
    Set_Bar("VScroll", Bar_Value(Pan_Y, Scroll_Range_Y));
    Set_Bar("HScroll", Bar_Value(Pan_X, Scroll_Range_X));
    Scroll_Guard = false;
}

void View_Center_Map() {
    View_Half_W = Pic_Width / 2.0;
    View_Half_H = Pic_Height / 2.0;
    Find_Map_Halves();
    Pan_Y = Map_Half_H - View_Half_H;
    Pan_X = Map_Half_W - View_Half_W;
    Scroll_Bars_Follow();
}

void View_Center_On_Point(const Pt& P) {
    Find_Map_Halves();
    Pan_Y = Map_Half_H - P.Y;
    Pan_X = Map_Half_W - P.X;
    Scroll_Bars_Follow();
}

void View_Put(Double New_Zoom, Double New_Pan_X, Double New_Pan_Y) {
    if (!std::isfinite(New_Zoom) || !std::isfinite(New_Pan_X) || !std::isfinite(New_Pan_Y)) return;
    Find_Map_Halves();
    Zoom = std::clamp(New_Zoom, Zoom_Least_Set, Zoom_Most);
    const Double Most_X = Map_Half_W + View_Half_W / Zoom, Most_Y = Map_Half_H + View_Half_H / Zoom;
    Pan_X = std::clamp(New_Pan_X, -Most_X, Most_X);
    Pan_Y = std::clamp(New_Pan_Y, -Most_Y, Most_Y);
    Scroll_Bars_Follow();
}

// The pan counts from the canvas's middle, which therefore keeps its point of the map.
void View_Resize(Long Width, Long Height) {
    Pic_Width = Odd_Size(Width);
    Pic_Height = Odd_Size(Height);
    View_Half_W = Pic_Width / 2.0;
    View_Half_H = Pic_Height / 2.0;
    if (Edit_On != 0) View_Redraw();
}

void HScroll_Change(Long Value) {
    Scroll_To(Pan_X, Scroll_Range_X, Value);
}

void VScroll_Change(Long Value) {
    Scroll_To(Pan_Y, Scroll_Range_Y, Value);
}

void Cmd_ZPlus() {
    if (Zoom_Up()) Redraw_And_Focus();
}

void Cmd_ZMoins() {
    if (Zoom_Down()) Redraw_And_Focus();
}

void Cmd_AffBmp() {
    Toggle(Show_Bitmap);
}

void Cmd_AffTexture() {
    Toggle(Show_Texture);
}

void Cmd_Grid() {
    Toggle(Show_Grid);
}

void Cmd_ColourGrid() {
    The_Host().Run_Form("Frm_ColourGrid");
    Redraw_And_Focus();
}

void View_Zoom_To(Double New_Zoom) {
    Zoom = std::clamp(New_Zoom, Zoom_Least_Set, Zoom_Most);
    Redraw_And_Focus();
}

void View_Fit() {
    if (Map_Width <= 0 || Map_Height <= 0) return;
    Pan_X = Pan_Y = 0.0;
    Scroll_Bars_Follow();
    View_Zoom_To(std::min(static_cast<Double>(Pic_Width) / Map_Width,
                          static_cast<Double>(Pic_Height) / Map_Height));
}

void View_Home() {
    Pan_X = (Map_Width - Pic_Width / Zoom) / 2.0;
    Pan_Y = (Map_Height - Pic_Height / Zoom) / 2.0;
    Scroll_Bars_Follow();
    Redraw_And_Focus();
}

void View_Wheel(Int Steps, Pic_Px P) {
    const Pix Kept = Pic_To_Map(P);
    bool Stepped = false;
    for (Int I = 0; I < std::abs(Steps); ++I) {
        if (!(Steps > 0 ? Zoom_Up() : Wheel_May_Go_Out() && Zoom_Down())) break;
        Stepped = true;
    }
    if (!Stepped) return;
    Pan_X = Map_Width / 2.0 + (P.X - View_Half_W) / Zoom - Kept.X;
    Pan_Y = Map_Height / 2.0 + (P.Y - View_Half_H) / Zoom - Kept.Y;
    Scroll_Bars_Follow();
    View_Redraw();
}

void View_Drag(Double DX, Double DY) {
    Pan_X += DX / Zoom;
    Pan_Y += DY / Zoom;
    Scroll_Bars_Follow();
    View_Redraw();
}

void View_Scroll(Double DX, Double DY) {
    Pan_X = Pan_Held(Pan_X - DX / Zoom, Pan_X, Map_Width);
    Pan_Y = Pan_Held(Pan_Y - DY / Zoom, Pan_Y, Map_Height);
    Scroll_Bars_Follow();
    View_Redraw();
}

void View_Wheel_Sideways(Int Steps) {
    View_Scroll(-Steps * Wheel_Side_Step, 0.0);
}

void View_State_Reset() {
    The_View_State = {};
    The_Grid_In_View = {};
    Paint_Mode = nullptr;
    The_Overlay = {};
}
