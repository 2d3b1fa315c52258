// shapes/poly/poly_to_cells.cpp - pieces into their cells, and the cells into their order.
#include <cstdint>
#include <vector>

#include "geometry/box.h"
#include "geometry/exchange_order.h"
#include "grid/terrain_grid.h"
#include "shapes/poly/poly_prepare.h"

namespace {

Cell_Pos Cell_Of(std::span<const Pix> Points) {
    Box_Pix B;
    for (const Pix P : Points) B.Add(P);
    return LatLon_To_Cell(Pixel_To_LatLon({(B.LX + B.HX) / 2, (B.LY + B.HY) / 2}));
}

CPt Local(Pix P, const Cell_Pos& C, bool By_Area) {
    if (By_Area) {
        const Loc_Area L = Pixel_Loc_In_Area(P, C.AreaLon, C.AreaLat);
        return {P.X, P.Y, L.LocX, L.LocY};
    }
    const Loc_Cell L = Pixel_Loc_In_Cell(P, C);
    return {P.X, P.Y, L.LocX, L.LocY};
}

// Of two equal neighbours the first goes; the second then stays without being looked at, so
// that three in a row leave two. Returns what is left, at the front of Line.
std::span<CPt> Without_Repeats(std::span<CPt> Line) {
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
    return Line.first(Kept);
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

// What the order of the pieces depends on. It stands apart from them, since they are large and
// there may be millions.
struct Cell_Rank {
    std::uint32_t Cell;  // its place on the globe: row by row of Areas, then inside the Area
    Long Group_Root, Draw_Order;
};

Cell_Rank Rank_Of(const CPoly& P) {
    const auto Area = static_cast<std::uint32_t>(P.AreaLat * Nb_AreaLon + P.AreaLon);
    const auto Cell = static_cast<std::uint32_t>(P.CellLat * Nb_Cell_In_Area + P.CellLon);
    return {Area * Nb_Cell_In_Area * Nb_Cell_In_Area + Cell, P.Group_Root, P.Draw_Order};
}

bool Comes_Before(const Cell_Rank& A, const Cell_Rank& B) {
    if (A.Cell != B.Cell) return A.Cell < B.Cell;
    if (A.Group_Root != B.Group_Root) return A.Group_Root < B.Group_Root;
    return A.Draw_Order > B.Draw_Order;
}

void Sort_By_Cell(Table<CPoly>& Polys) {
    std::vector<Cell_Rank> Rank;
    Rank.reserve(Polys.Rows().size());
    for (const CPoly& P : Polys.Rows()) Rank.push_back(Rank_Of(P));
    const auto At = [&](Long I) -> const Cell_Rank& { return Rank[static_cast<std::size_t>(I)]; };
    Put_In_Order(Polys, Exchange_Places(
                            Polys.Nb(), [&](Long I) { return At(I).Cell; },
                            [&](Long I, Long J) { return Comes_Before(At(I), At(J)); }));
}

// Takes cut pieces into lists, all but those that are dropped.
class Cell_Lists final : public Piece_Sink {
public:
    Cell_Lists(bool By_Area, Table<CPoly>& Polys, Table<CPt>& Places,
               bool (*Drops)(std::span<const CPt>))
        : By_Area_(By_Area), Polys_(Polys), Places_(Places), Drops_(Drops) {}

    void Begin() override {
        Polys_.Dimension(0);
        Places_.Dimension(0);
    }
    void Take(const WPoly& Like, std::span<const Pix> Points) override;

private:
    bool By_Area_;
    Table<CPoly>& Polys_;
    Table<CPt>& Places_;
    bool (*Drops_)(std::span<const CPt>);
};

void Cell_Lists::Take(const WPoly& Like, std::span<const Pix> Points) {
    const Cell_Pos C = Cell_Of(Points);
    const Long Before = Places_.Nb();
    const std::span<CPt> Line = Places_.Append_Rows(Points.size());
    for (std::size_t I = 0; I < Line.size(); ++I) Line[I] = Local(Points[I], C, By_Area_);
    const std::span<const CPt> Left = Without_Repeats(Line);
    const bool Is_Kept = Left.size() >= 3 || (Points.size() == 2 && Left.size() == 2);
    if (!Is_Kept || (Drops_ && Drops_(Left))) {
        Places_.Truncate(Before);
        return;
    }
    Places_.Truncate(Before + static_cast<Long>(Left.size()));
    CPoly P = Finished(Like, C, By_Area_);
    P.Nb = static_cast<Int>(Left.size());
    P.First = Before + 1;
    P.Last = Places_.Nb();
    Polys_.Append(P);
}

}  // namespace

void Poly_To_Cells_Into(Int Mode, Table<CPoly>& Polys, Table<CPt>& Places,
                        bool (*Drops)(std::span<const CPt>)) {
    Tab_NPoly.Reset();
    Tab_NPt.Reset();
    Polys.Reserve(Room_For_Points(Nb_WPoly));
    Places.Reserve(Room_For_Points(Nb_WPt));
    Cell_Lists Lists(Mode == Mode_VTP2, Polys, Places, Drops);
    Poly_Cut_Cells(Mode, Lists);
    Tab_WPoly.Reset();
    Tab_WPt.Reset();
    Sort_By_Cell(Polys);
}

void Poly_To_Cells(Int Mode) {
    Poly_To_Cells_Into(Mode, Tab_CPoly, Tab_CPt);
}
