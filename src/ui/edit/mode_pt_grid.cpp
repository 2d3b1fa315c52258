// ui/edit/mode_pt_grid.cpp - the mode in which altitude points are set.
#include "core/dialog_flags.h"
#include "core/host.h"
#include "core/model_ops.h"
#include "core/typed_number.h"
#include "gen/driver.h"
#include "ui/canvas/mesh_draw.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"
#include "ui/edit/modes.h"

namespace {

constexpr Double Reach = 2.0;       // map pixels at which a point is under the mouse
constexpr Double Beside_Mouse = 5;  // canvas pixels from the mouse to its label
constexpr Long On_Point = 0xFFC0FF, On_Nothing = 0xFFFFC0;

// Points make sense once the mesh that they belong to has been chosen.
bool Mesh_Is_Chosen() {
    if (Mesh_Done == 0) The_Host().Run_Form("Frm_Mesh");
    return Mesh_Done != 0;
}

void Paint() {
    Mesh_Draw();
    Objects_Draw_Backdrop();
    PtGrid_Marks_Draw();
    The_Surface().Refresh();
    The_Host().Set_Focus("Pic");
}

bool Is_Near(Double A, Double Mouse) {
    if (!(A - Mouse < 2 * Reach && Mouse - A < 2 * Reach)) return false;  // nearly all of them
    return Round_Lng(A - Reach) <= Mouse && Mouse <= Round_Lng(A + Reach);
}

// The first live point under a place of the map, or 0.
Long Point_At(Pix P) {
    if (!(-Reach <= P.X && P.X <= Map_Width + Reach && -Reach <= P.Y && P.Y <= Map_Height + Reach))
        return 0;
    for (Long I = 1; I <= Nb_PtGrid; ++I) {
        const PtGrid& G = Tab_PtGrid[I];
        if (Is_Near(G.X, P.X) && Is_Near(G.Y, P.Y) && G.Active == 1) return I;
    }
    return 0;
}

// To the right of the mouse, or to the left of it where the label would pass the canvas's edge.
Long Place_Beside(Double Mouse, Long Size, Long Pic_Size) {
    const bool Passes = Size + Mouse + Beside_Mouse > Pic_Size - 1;
    return Round_Lng(Passes ? Mouse - Size - Beside_Mouse : Mouse + Beside_Mouse);
}

void Move(const Mouse_Event&) {
    if (Dialog_Up != 0 || Mouse_Off_Grid) return;
    Sel_Alt_Pt = Point_At(Pic_To_Map({Move_X, Move_Y}));
    Overlay_Label& L = The_Overlay.LPtGrid;
    L.Text = Sel_Alt_Pt == 0 ? "" : "Altitude= " + Shown_Number(Tab_PtGrid[Sel_Alt_Pt].Alt);
    L.Back_Colour = Sel_Alt_Pt == 0 ? On_Nothing : On_Point;
    const Size_Px Size = The_Surface().Label_Size(L);
    L.X = Place_Beside(Move_X, Size.W, Pic_Width);
    L.Y = Place_Beside(Move_Y, Size.H, Pic_Height);
    The_Surface().Overlay_Changed();
}

void Press(const Mouse_Event&) {
    if (Dialog_Up != 0) return;
    if (Sel_Alt_Pt > Nb_PtGrid) Sel_Alt_Pt = 0;  // the table is shorter than it was
    Dialog_Up = 1;
    PtGrid_Cancelled = 1;
    The_Host().Run_Form("Frm_PtGrid");
    if (PtGrid_Cancelled == 0) {
        PtGrid_Mark(Sel_Alt_Pt);
        The_Surface().Refresh();
    }
    Dialog_Up = 0;
}

bool Key(Key_Event K) {
    if (K.Code != Key_Delete || Sel_Alt_Pt == 0 || Sel_Alt_Pt > Nb_PtGrid) return false;
    PtGrid_Delete(Sel_Alt_Pt);
    View_Redraw();
    The_Host().Set_Focus("Pic");
    return true;
}

Wording Hint() {
    return {"Click sets an altitude; Delete removes the one under the mouse",
            "Clic : donne une altitude ; Suppr efface celle sous la souris"};
}

}  // namespace

const Mode_Row Row_Of_PtGrid{
    .Name = "Mode_PtGrid",
    .Flag = &Mode_Flags::Mode_PtGrid,
    .Button = "Cmd_TrtMesh",
    .May_Enter = Mesh_Is_Chosen,
    .Leave_Former = Mode_Leave,
    .On_Enter = [] { The_Host().Set_Visible("LPtGrid", true); },
    .Paint = Paint,
    .Press = Press,
    .Move = Move,
    .Key = Key,
    .Hint = Hint,
    .Help = {"Sets altitudes on the finer mesh of the terrain.\n"
             "A click sets or changes one, Delete removes the one under the mouse.",
             "Donne des altitudes sur le maillage plus fin du terrain.\n"
             "Un clic en pose ou en change une, Suppr efface celle sous la souris."}};
