// gen/vtp2_lists.cpp - order, overflow groups and nesting of textured pieces.
#include "gen/vtp2_lists.h"

#include "grid/exchange_order.h"

namespace {

// The keys that pieces are ordered by, least first: below 0 when A comes before B.
template <typename T>
int Order(T A, T B) {
    return A < B ? -1 : A > B ? 1 : 0;
}

/// What two neighbours differ in, from the outermost.
enum class Change { Area, Cell, Layer, Tex, Group, None };

Change First_Change(const CPoly& A, const CPoly& B) {
    if (A.AreaLat != B.AreaLat || A.AreaLon != B.AreaLon) return Change::Area;
    if (A.CellLat != B.CellLat || A.CellLon != B.CellLon) return Change::Cell;
    if (A.Attr->Layer_Vtp2 != B.Attr->Layer_Vtp2) return Change::Layer;
    if (A.Tex_Index != B.Tex_Index) return Change::Tex;
    if (A.Tex_Group != B.Tex_Group) return Change::Group;
    return Change::None;
}

bool Comes_Before(const CPoly& A, const CPoly& B) {
    for (const int O :
         {Order(A.AreaLat, B.AreaLat), Order(A.AreaLon, B.AreaLon), Order(A.CellLat, B.CellLat),
          Order(A.CellLon, B.CellLon), Order(A.Attr->Layer_Vtp2, B.Attr->Layer_Vtp2),
          Order(A.Tex_Index, B.Tex_Index), Order(A.Tex_Group, B.Tex_Group),
          Order(A.Group_Root, B.Group_Root), Order(B.Draw_Order, A.Draw_Order)})
        if (O != 0) return O < 0;
    return A.Seq < B.Seq;
}

}  // namespace
