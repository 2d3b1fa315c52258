// ui/canvas/grid_marks.cpp - hatching of the squares that have a record.
#include "ui/canvas/grid_marks.h"

#include "grid/terrain_grid.h"

namespace {

constexpr Double Least_Cell_W = 5.0;  // canvas pixels; marks on smaller squares tell nothing

constexpr Long Yellow = 0xFFFF00, Blue = 0x0000FF, Magenta = 0xFF00FF, Black = 0x000000;

Long Colour_Of_Attrib(Byte Attrib) {
    if (Attrib == 0) return Blue;
    return Attrib == 1 ? Magenta : Black;
}

Long Colour_Of(const Area& A) {
    return A.Fill1x1 != 1 ? Yellow : Colour_Of_Attrib(A.Attrib);
}
Long Colour_Of(const Lod8& L) {
    return Colour_Of_Attrib(L.Attrib);
}
Long Colour_Of(const Excl&) {
    return Hatch_Grey;
}

template <typename R>
void Draw_Marks(const Project_Table<R>& Tab) {
    if (Tab.Nb() == 0) return;
    Hatching Hatches;
    Squares_In_View().For_Each_Record(
        Tab, [&](const Square_Px& S, const R& Record) { Hatches.Paint(S, Colour_Of(Record)); });
}

}  // namespace

bool Marks_Fit() {
    return The_Grid_In_View.Cell_W >= Least_Cell_W;
}

Hatching::Hatching() : Cell_W_(The_Grid_In_View.Cell_W) {
    Nb_ = Cell_W_ < 11.0 ? 1 : Cell_W_ < 31.0 ? 2 : Cell_W_ < 81.0 ? 3 : Cell_W_ < 150.0 ? 4 : 6;
}

void Hatching::Paint(const Square_Px& S, Long Colour) {
    const Pen With{.Colour = Colour, .Style = Line_Style::Dotted};
    for (Int K = 1; K <= Nb_; ++K) {
        const Long X = Round_Lng(S.Left + K * Cell_W_ / (Nb_ + 1));
        Out_.Add({X, S.Top, X, S.Bottom}, With);
    }
}

Cell_Pos Cell_Of_Pixel(Pix P) {
    return LatLon_To_Cell(Pixel_To_LatLon(P));
}

// Longitude follows the column and latitude the row, so one place of each is enough.
Squares_In_View::Squares_In_View(Cell_Pos (*Cell_Of)(Pix)) {
    const Grid_In_View& G = The_Grid_In_View;
    if (G.First_Col == 0 || G.First_Row == 0) return;
    const auto Cell_At = [Cell_Of](Double X, Double Y) { return Cell_Of(Pic_To_Map({X, Y})); };
    for (Long J = 0; J < G.Last_Col - G.First_Col; ++J) {
        const Long From = Round_Lng(J * G.Cell_W + G.Grid_X0);
        const Long To = Round_Lng((J + 1) * G.Cell_W + G.Grid_X0);
        const Cell_Pos At = Cell_At((static_cast<Double>(From) + To) / 2.0, 0.0);
        Cols_.push_back({From, To, At.AreaLon, At.CellLon});
    }
    for (Long I = 0; I < G.Last_Row - G.First_Row; ++I) {
        const Long From = Round_Lng(I * G.Cell_H + G.Grid_Y0);
        const Long To = Round_Lng((I + 1) * G.Cell_H + G.Grid_Y0);
        const Cell_Pos At = Cell_At(0.0, (static_cast<Double>(From) + To) / 2.0);
        Rows_.push_back({From, To, At.AreaLat, At.CellLat});
    }
    if (Is_Empty()) return;
    const auto [West, East] = std::ranges::minmax_element(Cols_, {}, &Stripe::Area);
    const auto [North, South] = std::ranges::minmax_element(Rows_, {}, &Stripe::Area);
    First_Lon_ = West->Area, Last_Lon_ = East->Area;
    First_Lat_ = North->Area, Last_Lat_ = South->Area;
}

void Grid_Marks_Draw(Grid_Marks Marks) {
    if (!Marks_Fit()) return;
    if (Marks == Grid_Marks::Areas) Draw_Marks(Tab_Area);
    if (Marks == Grid_Marks::Lod8s) Draw_Marks(Tab_Lod8);
    if (Marks == Grid_Marks::Excls) Draw_Marks(Tab_Excl);
}
