// reference/to_cells.cpp - pieces get their cell and their local coordinates, and their order.
#include <algorithm>
#include <tuple>

#include "grid/terrain_grid.h"
#include "reference/polygons.h"

namespace reference {

namespace {

Cell_Pos Cell_Of(const WPoly& W) {
    Pix Low = Pix_Of(Tab_WPt[W.First]), High = Low;
    for (Long I = W.First; I <= W.Last; ++I) {
        const WPt& P = Tab_WPt[I];
        Low = {std::min(Low.X, P.X), std::min(Low.Y, P.Y)};
        High = {std::max(High.X, P.X), std::max(High.Y, P.Y)};
    }
    Cell_Pos C;
    Pixel_To_Cell_Loc({(Low.X + High.X) / 2, (Low.Y + High.Y) / 2}, C);
    return C;
}

CPt Placed(const WPt& P, const Cell_Pos& C, Int Mode) {
    if (Mode == 2) {
        const Loc_Area L = Pixel_Loc_In_Area(Pix_Of(P), C.AreaLon, C.AreaLat);
        return {P.X, P.Y, L.LocX, L.LocY};
    }
    const Loc_Cell L = Pixel_Loc_In_Cell(Pix_Of(P), C);
    return {P.X, P.Y, L.LocX, L.LocY};
}

bool Same_Place(const CPt& A, const CPt& B) {
    return A.LocX == B.LocX && A.LocY == B.LocY;
}

// Row[1] to Row[n]. An entry that moves down is not compared with the one after it.
void Drop_Local_Repeats(std::vector<CPt>& Row, Long& n) {
    Row.push_back(Row[1]);
    for (Long i = 1; i <= n; ++i) {
        if (!Same_Place(Row[i], Row[i + 1])) continue;
        Row.erase(Row.begin() + i);
        --n;
    }
    Row.pop_back();
}

void CPoly_Append(const WPoly& W, const Cell_Pos& C, Int Mode, const std::vector<CPt>& Row,
                  Long n) {
    CPoly Piece{.Nb = static_cast<Int>(n), .First = Nb_CPt + 1};
    for (Long i = 1; i <= n; ++i) Tab_CPt.Append(Row[i]);
    Piece.Last = Nb_CPt;
    Piece.AreaLon = C.AreaLon;
    Piece.AreaLat = C.AreaLat;
    if (Mode != 2) {
        Piece.CellLon = C.CellLon;
        Piece.CellLat = C.CellLat;
    }
    Piece.Num = W.Num;
    Piece.Attr = W.Attr;
    Piece.Draw_Order = W.Draw_Order;
    Piece.Group_Root = W.Group_Root;
    Tab_CPoly.Append(Piece);
}

bool Comes_Before(const CPoly& A, const CPoly& B) {
    if (A.AreaLat != B.AreaLat) return A.AreaLat < B.AreaLat;
    if (A.AreaLon != B.AreaLon) return A.AreaLon < B.AreaLon;
    if (A.CellLat != B.CellLat) return A.CellLat < B.CellLat;
    if (A.CellLon != B.CellLon) return A.CellLon < B.CellLon;
    if (A.Group_Root != B.Group_Root) return A.Group_Root < B.Group_Root;
    return A.Draw_Order > B.Draw_Order;
}

}  // namespace

void Poly_To_Cells(Int Mode) {
    for (const WPoly& W : Tab_WPoly.Rows()) {
        const Cell_Pos C = Cell_Of(W);
        std::vector<CPt> Row{CPt{}};
        for (Long I = W.First; I <= W.Last; ++I) Row.push_back(Placed(Tab_WPt[I], C, Mode));
        Long n = W.Nb;
        Drop_Local_Repeats(Row, n);
        if (n >= 3 || (W.Nb == 2 && n >= 2)) CPoly_Append(W, C, Mode, Row, n);
    }
    for (Long i = 1; i <= Nb_CPoly - 1; ++i)
        for (Long j = i + 1; j <= Nb_CPoly; ++j)
            if (Comes_Before(Tab_CPoly[j], Tab_CPoly[i])) std::swap(Tab_CPoly[i], Tab_CPoly[j]);
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
}

}  // namespace reference
