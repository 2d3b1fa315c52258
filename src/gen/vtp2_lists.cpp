// gen/vtp2_lists.cpp - order, overflow groups and nesting of textured pieces.
#include "gen/vtp2_lists.h"

#include <tuple>

#include "geometry/exchange_order.h"

namespace {

/// The outermost thing that two neighbours in the list differ in.
enum class Change { Area, Cell, Layer, Tex, Group, None };

Change First_Change(const CPoly& A, const CPoly& B) {
    if (A.AreaLat != B.AreaLat || A.AreaLon != B.AreaLon) return Change::Area;
    if (A.CellLat != B.CellLat || A.CellLon != B.CellLon) return Change::Cell;
    if (A.Attr->Layer_Vtp2 != B.Attr->Layer_Vtp2) return Change::Layer;
    if (A.Tex_Index != B.Tex_Index) return Change::Tex;
    if (A.Tex_Group != B.Tex_Group) return Change::Group;
    return Change::None;
}

// Draw_Order descends, so there the two stand the other way round.
bool Comes_Before(const CPoly& A, const CPoly& B) {
    return std::tie(A.AreaLat, A.AreaLon, A.CellLat, A.CellLon, A.Attr->Layer_Vtp2, A.Tex_Index,
                    A.Tex_Group, A.Group_Root, B.Draw_Order, A.Seq) <
           std::tie(B.AreaLat, B.AreaLon, B.CellLat, B.CellLon, B.Attr->Layer_Vtp2, B.Tex_Index,
                    B.Tex_Group, B.Group_Root, A.Draw_Order, B.Seq);
}

}  // namespace

void Vtp2_Sort(Tex_List& Textures) {
    for (CPoly& P : Tab_CPoly.Rows()) {
        P.Tex_Index = Textures.Find_For(*P.Attr);
        P.Tex_Group = P.Tex_Index;
    }
    Exchange_Order(Tab_CPoly, Comes_Before);
}

// The numbers ascend along the list, so its order stands.
Long Vtp2_Overflow(Long Nb_Tex) {
    Long In_Group = 0;
    for (Long I = 1; I <= Nb_CPoly; ++I) {
        CPoly& P = Tab_CPoly[I];
        const bool New_Run = I == 1 || First_Change(Tab_CPoly[I - 1], P) < Change::Group;
        if (New_Run) {
            In_Group = 1;
            continue;
        }
        if (In_Group == Max_Group) {
            In_Group = 0;
            ++Nb_Tex;
            P.Tex_Group = Nb_Tex;
        } else {
            P.Tex_Group = Tab_CPoly[I - 1].Tex_Group;
        }
        ++In_Group;
    }
    return Nb_Tex;
}

Vtp2_Lists Vtp2_Nest() {
    Vtp2_Lists V;
    for (Long I = 1; I <= Nb_CPoly; ++I) {
        const CPoly& P = Tab_CPoly[I];
        const Change From = I == 1 ? Change::Area : First_Change(Tab_CPoly[I - 1], P);
        // What changes takes everything inside it along.
        if (From <= Change::Area) V.Areas.Append({P.AreaLon, P.AreaLat, V.Cells.Nb() + 1, 0});
        if (From <= Change::Cell) V.Cells.Append({P.CellLon, P.CellLat, V.Layers.Nb() + 1, 0});
        if (From <= Change::Layer) V.Layers.Append({P.Attr->Layer_Vtp2, 0, V.Texs.Nb() + 1, 0});
        if (From <= Change::Tex) V.Texs.Append({P.Tex_Index, V.Groups.Nb() + 1, 0});
        if (From <= Change::Group) {
            V.Groups.Append({P.Tex_Group, I, 0});
            ++V.Layers[V.Layers.Nb()].Nb_Group;
        }
        V.Areas[V.Areas.Nb()].Last = V.Cells.Nb();
        V.Cells[V.Cells.Nb()].Last = V.Layers.Nb();
        V.Layers[V.Layers.Nb()].Last = V.Texs.Nb();
        V.Texs[V.Texs.Nb()].Last = V.Groups.Nb();
        V.Groups[V.Groups.Nb()].Last = I;
    }
    return V;
}
