// ui/canvas/mesh_draw.cpp - the mesh of altitudes and its points on the canvas.
#include "ui/canvas/mesh_draw.h"

#include <algorithm>

#include "core/model.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

constexpr Long Black = 0x000000, Red = 0xFF0000;
constexpr Long Cell_Units = 256;
constexpr Long Arm = 3;  // of a cross, pixels
constexpr Pen Cross_Pen{.Colour = Red};

// Lines of the mesh: units of a Cell from one to the next, and how many follow the edge.
struct Mesh_Step {
    Long Units = 0;
    Long Last = 0;
};

// A project may hold any number; beyond these there is no such mesh.
Mesh_Step Step_Of_Mesh() {
    const Int Lod = std::clamp<Int>(LodMesh, 0, 4);
    const Long Units = Long{1} << (Lod + 1);
    return {Units, Round_Lng(static_cast<Double>(Cell_Units) / Units - 1.0)};
}

// Calls Paint(Place, Is_Edge) for each line along one axis that shows another pixel than the one
// before it, and lies on the canvas.
template <typename F>
void For_Each_Line(Long Nb_Cells, Double From, Double Cell_Px, Long Pic_Size, F&& Paint) {
    const auto [Units, Last] = Step_Of_Mesh();
    for (Long I = 0; I < Nb_Cells; ++I) {
        const Long Edge = Round_Lng(I * Cell_Px + From);
        Long Before = Edge - 1;
        for (Long K = 0; K <= Last; ++K) {
            const Long At = Round_Lng(Edge + Units * Cell_Px / Loc_Cell_Span * K);
            if (At >= Pic_Size) return;
            if (At != Before && At >= 0) Paint(At, K == 0);
            Before = At;
        }
    }
}

Pen Pen_Of(bool Is_Edge) {
    return {.Colour = Black, .Style = Is_Edge ? Line_Style::Solid : Line_Style::Dotted};
}

bool Can_Be_Seen(Long X, Long Y) {
    return -Arm <= X && X < Pic_Width + Arm && -Arm <= Y && Y < Pic_Height + Arm;
}

void Add_Cross(Line_Batch& Out, const PtGrid& P) {
    const Pic_Px At = Map_To_Pic({P.X, P.Y});
    // far off the canvas a place may not fit a whole number
    if (!(At.X > -Cell_Units && At.X < Pic_Width + Cell_Units && At.Y > -Cell_Units &&
          At.Y < Pic_Height + Cell_Units))
        return;
    const Long X = Round_Lng(At.X), Y = Round_Lng(At.Y);
    if (!Can_Be_Seen(X, Y)) return;
    Out.Add({X - Arm, Y, X + Arm, Y}, Cross_Pen);
    Out.Add({X, Y - Arm, X, Y + Arm}, Cross_Pen);
}

}  // namespace

void Mesh_Draw() {
    Grid_Find();
    if (!Show_Grid) return;
    const Grid_In_View& G = The_Grid_In_View;
    {
        Line_Batch Out;
        const Long Left = Round_Lng(G.Grid_X0), Right = Round_Lng(G.Grid_X1);
        const Long Top = Round_Lng(G.Grid_Y0), Bottom = Round_Lng(G.Grid_Y1);
        if (G.First_Row != 0)
            For_Each_Line(G.Last_Row - G.First_Row, G.Grid_Y0, G.Cell_H, Pic_Height,
                          [&](Long Y, bool Is_Edge) {
                              Out.Add({Left, Y, Right, Y}, Pen_Of(Is_Edge));
                          });
        if (G.First_Col != 0)
            For_Each_Line(G.Last_Col - G.First_Col, G.Grid_X0, G.Cell_W, Pic_Width,
                          [&](Long X, bool Is_Edge) {
                              Out.Add({X, Top, X, Bottom}, Pen_Of(Is_Edge));
                          });
    }
    The_Surface().Refresh();
}

void PtGrid_Mark(Long I) {
    Line_Batch Out;
    Add_Cross(Out, Tab_PtGrid[I]);
}

void PtGrid_Marks_Draw() {
    Line_Batch Out;
    for (const PtGrid& P : Tab_PtGrid.Rows())
        if (P.Active == 1) Add_Cross(Out, P);
}
