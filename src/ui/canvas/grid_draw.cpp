// ui/canvas/grid_draw.cpp - which lines of the grid are in view, and their painting.
#include <algorithm>
#include <cmath>

#include "core/program.h"
#include "grid/terrain_grid.h"
#include "ui/canvas/grid_marks.h"
#include "ui/canvas/surface.h"
#include "ui/canvas/view.h"

namespace {

constexpr Long Border_Colour = 0xFF0000;
constexpr Double Border_Tolerance = 0.0001;  // of an Area
constexpr Long Cols_Of_Globe = Nb_AreaLon * Nb_Cell_In_Area;
constexpr Long Rows_Of_Globe = Nb_AreaLat * Nb_Cell_In_Area;
// Far beyond any count of lines, and small enough that two of them add up in a Long.
constexpr Double Most_Lines = 1e9;

// The grid along one axis: canvas pixels of its edges and of a Cell, and the Cells of it.
struct Grid_Axis {
    Double First_Px = 0.0, Last_Px = 0.0;
    Double Cell_Px = 0.0;
    Long Cells = 0;
    Long Pic_Size = 0;
};

struct Lines_In_View {
    Long First = 0, Last = 0;
    Double From = 0.0, To = 0.0;
};

Long Whole_Cells(Double Pixels, Double Cell_Px) {
    return Fix_Lng(std::min(std::fabs(Pixels / Cell_Px), Most_Lines));
}

// A grid without an extent, or with more Cells than the globe has, comes from a calibration that
// makes no sense; it has no lines.
bool Can_Be_Shown(const Grid_Axis& A, Long Most_Cells) {
    return A.Cells >= 1 && A.Cells <= Most_Cells && A.Cell_Px > 0.0 && std::isfinite(A.Cell_Px) &&
           std::isfinite(A.First_Px);
}

Lines_In_View Find_Lines(const Grid_Axis& A) {
    Lines_In_View L{.First = 1, .From = A.First_Px, .To = A.Last_Px};
    if (A.First_Px < 0.0) {
        L.First = Whole_Cells(A.First_Px, A.Cell_Px) + 1;
        L.From = (L.First - 1) * A.Cell_Px + A.First_Px;
    }
    if (L.From > A.Pic_Size - 1) {
        L.First = 0;
        return L;
    }
    L.Last = L.First + Whole_Cells(A.Pic_Size - L.From, A.Cell_Px) + 1;
    if (A.Last_Px <= A.Pic_Size - 1) L.Last = A.Cells + 1;
    L.Last = std::min(L.Last, A.Cells + 2);  // where Cells are smaller than a pixel
    L.To = (L.Last - L.First) * A.Cell_Px + L.From;
    if (L.To < 0.0) L.First = 0;
    return L;
}

// The grid's edges lie at First_Px and Last_Px, or half a Cell before them.
Grid_Axis Make_Axis(Double First_Px, Double Last_Px, Double Cell_Px, Long Cells, Long Pic_Size,
                    Grid_Place Where) {
    const Double Shift = Where == Grid_Place::On_Corners ? Cell_Px / 2.0 : 0.0;
    return {First_Px - Shift, Last_Px - Shift, Cell_Px, Cells, Pic_Size};
}

// Pen of the line at Degrees: an edge of Areas stands out.
Pen Pen_Of_Line(Double Degrees, Double Area_Step) {
    const Double Areas = Degrees / Area_Step;
    const Double Rest = Areas - Fix_Lng(Areas);
    if (-Border_Tolerance < Rest && Rest < Border_Tolerance) return {.Colour = Border_Colour};
    return {.Colour = Grid_Colour, .Style = Line_Style::Dotted};
}

// Leaves out a line that would paint again what the one before it has painted: where Cells are
// smaller than a pixel that is nearly all of them.
class Line_Painter {
public:
    void Paint(const Line_Px& L, const Pen& With) {
        if (L == Last_ && With == Last_With_ && Any_) return;
        Out_.Add(L, With);
        Last_ = L;
        Last_With_ = With;
        Any_ = true;
    }

private:
    Line_Batch Out_;
    Line_Px Last_;
    Pen Last_With_;
    bool Any_ = false;
};

}  // namespace

void Grid_Find(Grid_Place Where) {
    The_Grid_In_View = {};
    const Long Cols = Fix_Lng((LonGridSE - LonGridNW) / Cell_StepLon + 0.1);
    const Long Rows = Fix_Lng((LatGridNW - LatGridSE) / Cell_StepLat + 0.1);
    const Pic_Px NW = Map_To_Pic({XGridNW, YGridNW});
    const Pic_Px SE = Map_To_Pic({XGridSE, YGridSE});
    const Double Cell_W = (XGridSE - XGridNW) * Zoom / Cols;
    const Double Cell_H = (YGridSE - YGridNW) * Zoom / Rows;
    const Grid_Axis X = Make_Axis(NW.X, SE.X, Cell_W, Cols, Pic_Width, Where);
    const Grid_Axis Y = Make_Axis(NW.Y, SE.Y, Cell_H, Rows, Pic_Height, Where);
    if (!Can_Be_Shown(X, Cols_Of_Globe) || !Can_Be_Shown(Y, Rows_Of_Globe)) return;
    const Lines_In_View In_X = Find_Lines(X), In_Y = Find_Lines(Y);
    The_Grid_In_View = {In_X.First, In_X.Last, In_Y.First, In_Y.Last, In_X.From,
                        In_X.To,    In_Y.From, In_Y.To,    Cell_W,    Cell_H};
}

void Grid_Draw_Lines() {
    const Grid_In_View& G = The_Grid_In_View;
    Line_Painter Painter;
    const Long Left = Round_Lng(G.Grid_X0), Right = Round_Lng(G.Grid_X1);
    const Long Top = Round_Lng(G.Grid_Y0), Bottom = Round_Lng(G.Grid_Y1);
    if (G.First_Row != 0)
        for (Long I = 0; I <= G.Last_Row - G.First_Row; ++I) {
            const Long Y = Round_Lng(I * G.Cell_H + G.Grid_Y0);
            const Double Lat = LatGridNW - (I + G.First_Row - 1) * Cell_StepLat;
            Painter.Paint({Left, Y, Right, Y}, Pen_Of_Line(Lat, Area_StepLat));
        }
    if (G.First_Col != 0)
        for (Long J = 0; J <= G.Last_Col - G.First_Col; ++J) {
            const Long X = Round_Lng(J * G.Cell_W + G.Grid_X0);
            const Double Lon = LonGridNW + (J + G.First_Col - 1) * Cell_StepLon;
            Painter.Paint({X, Top, X, Bottom}, Pen_Of_Line(Lon, Area_StepLon));
        }
}

void Grid_Draw(Grid_Marks Marks) {
    Grid_Find();
    if (!Show_Grid) return;
    Grid_Draw_Lines();
    Grid_Marks_Draw(Marks);
    The_Surface().Refresh();
}
