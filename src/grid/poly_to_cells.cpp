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
    return LatLon_To_Cell(Pixel_To_LatLon({(B.LX + B.HX) / 2, (B.LY + B.HY) / 2}));
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

CPoly Finished(const WPoly& W, const Cell_Pos& C, bool By_Area) {
    CPoly P;
    P.AreaLon = C.AreaLon;
    P.AreaLat = C.AreaLat;
    P.CellLon = By_Area ? Int{0} : C.CellLon;
    P.CellLat = By_Area ? Int{0} : C.CellLat;
    P.Num = W.Num;
    P.Attr = W.Attr;
    P.Draw_Order = W.Draw_Order;
    P.Group_Root = W.Group_Root;
    return P;
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

void Poly_To_Cells_Into(Int Mode, Table<CPoly>& Polys, Table<CPt>& Places,
                        bool (*Drops)(std::span<const CPt>)) {
    const bool By_Area = Mode == 2;
    Polys.Reserve(Nb_WPoly);
    Places.Reserve(Nb_WPt);
    const std::span<const WPt> All = Tab_WPt.Rows();
    std::vector<CPt> Line;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        const auto Points =
            All.subspan(static_cast<std::size_t>(W.First - 1), static_cast<std::size_t>(W.Nb));
        const Cell_Pos C = Cell_Of(Points);
        Line.clear();
        for (const WPt& P : Points) Line.push_back(Local(P, C, By_Area));
        Drop_Repeats(Line);
        if (Line.size() < 3 && !(W.Nb == 2 && Line.size() == 2)) continue;
        if (Drops && Drops(Line)) continue;
        CPoly P = Finished(W, C, By_Area);
        P.Nb = static_cast<Int>(Line.size());
        P.First = Places.Nb() + 1;
        for (const CPt& Pt : Line) Places.Append(Pt);
        P.Last = Places.Nb();
        Polys.Append(P);
    }
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Exchange_Order(Polys, Cell_Key, Comes_Before);
}

void Poly_To_Cells(Int Mode) {
    Poly_To_Cells_Into(Mode, Tab_CPoly, Tab_CPt);
}
