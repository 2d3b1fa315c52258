// grid/poly_to_cells.cpp - pieces into their cells, and the cells into their order.
#include <cstdint>
#include <vector>

#include "grid/box.h"
#include "grid/exchange_order.h"
#include "grid/poly_prepare.h"
#include "grid/terrain_grid.h"

namespace {

Cell_Pos Cell_Of(std::span<const WPt> Points) {
    Box_Pix B;
    for (const WPt& P : Points) B.Add(To_Pix(P));
    Cell_Pos C;
    Pixel_To_Cell_Loc({(B.LX + B.HX) / 2, (B.LY + B.HY) / 2}, C);
    return C;
}

CPt Local(const WPt& P, const Cell_Pos& C, bool By_Area) {
    if (By_Area) {
        const Loc_Area L = Pixel_Loc_In_Area(To_Pix(P), C.AreaLon, C.AreaLat);
        return {P.X, P.Y, L.LocX, L.LocY};
    }
    const Loc_Cell L = Pixel_Loc_In_Cell(To_Pix(P), C);
    return {P.X, P.Y, L.LocX, L.LocY};
}

// Of two equal neighbours the first goes; the second then stays without being looked at, so
// that three in a row leave two.
void Drop_Repeats(std::vector<CPt>& Line) {
    const std::size_t Nb = Line.size();
    const CPt First = Line[0];
    std::size_t Kept = 0;
    for (std::size_t I = 0; I < Nb; ++I) {
        const CPt& Next = I + 1 < Nb ? Line[I + 1] : First;
        if (Line[I].LocX == Next.LocX && Line[I].LocY == Next.LocY) {
            if (++I < Nb) Line[Kept++] = Line[I];
        } else {
            Line[Kept++] = Line[I];
        }
    }
    Line.resize(Kept);
}

void CPoly_Append(const WPoly& W, const Cell_Pos& C, bool By_Area, std::span<const CPt> Line) {
    CPoly P{.Nb = static_cast<Int>(Line.size()), .First = Nb_CPt + 1};
    for (const CPt& Pt : Line) Tab_CPt.Append(Pt);
    P.Last = Nb_CPt;
    P.AreaLon = C.AreaLon;
    P.AreaLat = C.AreaLat;
    P.CellLon = By_Area ? Int{0} : C.CellLon;
    P.CellLat = By_Area ? Int{0} : C.CellLat;
    P.Num = W.Num;
    P.Attr = W.Attr;
    P.Draw_Order = W.Draw_Order;
    P.Group_Root = W.Group_Root;
    Tab_CPoly.Append(P);
}

// The cell's place on the globe, row by row of Areas, then row by row inside the Area.
std::uint32_t Cell_Key(const CPoly& P) {
    const auto Area = static_cast<std::uint32_t>(P.AreaLat * Nb_AreaLon + P.AreaLon);
    const auto Cell = static_cast<std::uint32_t>(P.CellLat * Nb_Cell_In_Area + P.CellLon);
    return Area * Nb_Cell_In_Area * Nb_Cell_In_Area + Cell;
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
    const bool By_Area = Mode == 2;
    Tab_CPoly.Reserve(Nb_WPoly);
    Tab_CPt.Reserve(Nb_WPt);
    const std::span<const WPt> All = Tab_WPt.Rows();
    std::vector<CPt> Line;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        const auto Points =
            All.subspan(static_cast<std::size_t>(W.First - 1), static_cast<std::size_t>(W.Nb));
        const Cell_Pos C = Cell_Of(Points);
        Line.clear();
        for (const WPt& P : Points) Line.push_back(Local(P, C, By_Area));
        Drop_Repeats(Line);
        if (Line.size() >= 3 || (W.Nb == 2 && Line.size() == 2)) CPoly_Append(W, C, By_Area, Line);
    }
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Exchange_Order(Tab_CPoly, Cell_Key, Comes_Before);
}
