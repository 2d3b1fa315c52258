// gen/vlines.cpp - map pixels to points of an Area, end geometry, order and nesting.
#include "gen/vlines.h"

#include <algorithm>
#include <cstdint>
#include <cstdlib>
#include <map>
#include <span>
#include <tuple>
#include <vector>

#include "geometry/box.h"
#include "geometry/exchange_order.h"
#include "geometry/segments.h"
#include "grid/terrain_grid.h"
#include "shapes/line/line_collect.h"

namespace {

constexpr Long Lowest_Int = std::numeric_limits<Int>::min();
constexpr Long Highest_Int = std::numeric_limits<Int>::max();

// A line far off the map may still pass an Int; it then ends at its limit.
Int Held_Int(Long X) {
    return static_cast<Int>(std::clamp(X, Lowest_Int, Highest_Int));
}

Int Fix_Int(Double X) {
    return Held_Int(Fix_Lng(X));
}

Cell_Pos Area_Of(std::span<const WPt> Line) {
    Box_Pix B;
    for (const WPt& P : Line) B.Add(To_Pix(P));
    Cell_Pos Area;
    Pixel_To_Area_Loc({(B.LX + B.HX) / 2, (B.LY + B.HY) / 2}, Area);
    return Area;
}

VLinePt Local(const WPt& P, const Cell_Pos& Area, bool Bare) {
    if (Bare) {
        const Loc_Area_Raw L = Pixel_Loc_In_Area_Raw(To_Pix(P), Area.AreaLon, Area.AreaLat);
        return {Held_Int(L.LocX), Held_Int(L.LocY)};
    }
    const Loc_Area L = Pixel_Loc_In_Area(To_Pix(P), Area.AreaLon, Area.AreaLat);
    return {L.LocX, L.LocY};
}

// The points of a line on the scale of its Area, and as they are written; kept from line to line.
struct Line_Points {
    std::vector<VLinePt> Loc, Out;
};

void Convert(std::span<const WPt> Line, const Cell_Pos& Area, bool Bare, Line_Points& Points) {
    auto& [Loc, Out] = Points;
    Loc.clear();
    Out.clear();
    for (const WPt& P : Line) Loc.push_back(Local(P, Area, Bare));
    const std::size_t Last = Line.size() - 1;
    for (std::size_t J = 0; J <= Last; ++J) {
        const Byte Tag = Line[J].Tag;
        const bool Is_End = J == 0 || J == Last;
        if (Bare || Tag == Tag_Plain || !Is_End) {
            Out.push_back(Loc[J]);
            continue;
        }
        const VLinePt Extra = J == 0 ? Wide_End_Point(Loc[0], Loc[1], false, Tag)
                                     : Wide_End_Point(Loc[J - 1], Loc[J], true, Tag);
        // Inside the line it stands after the first point and before the last one.
        const bool Point_First = (J == 0) == (Tag == Tag_Wide);
        Out.push_back(Point_First ? Loc[J] : Extra);
        Out.push_back(Point_First ? Extra : Loc[J]);
    }
}

bool Comes_Before(const VLine& A, const VLine& B) {
    return std::tie(A.AreaLat, A.AreaLon, A.Layer, A.Attr->LineType) <
           std::tie(B.AreaLat, B.AreaLon, B.Layer, B.Attr->LineType);
}

// The Area's place on the globe, row by row, and the layer, which has eight bits.
std::uint32_t Layer_Key(const VLine& L) {
    const auto Area = static_cast<std::uint32_t>(L.AreaLat * Nb_AreaLon + L.AreaLon);
    return Area << 8 | static_cast<std::uint32_t>(L.Layer);
}

void Convert_All(VLine_Lists& V) {
    V.Lines.Reserve(Nb_WPoly);
    V.Points.Reserve(Nb_WPt);
    const std::span<const WPt> All = Tab_WPt.Rows();
    Line_Points Points;
    for (const WPoly& W : Tab_WPoly.Rows()) {
        const auto Line =
            All.subspan(static_cast<std::size_t>(W.First - 1), static_cast<std::size_t>(W.Nb));
        const Cell_Pos Area = Area_Of(Line);
        Convert(Line, Area, Is_Bare_Line(*W.Attr), Points);
        VLine L{.Nb_Pts = static_cast<Long>(Points.Out.size()), .First_Pt = V.Points.Nb() + 1};
        std::ranges::copy(Points.Out, V.Points.Append_Rows(Points.Out.size()).begin());
        L.Last_Pt = V.Points.Nb();
        L.AreaLon = Area.AreaLon;
        L.AreaLat = Area.AreaLat;
        L.Layer = W.Attr->Layer;
        L.Num = W.Num;
        L.Attr = W.Attr;
        V.Lines.Append(L);
    }
}

void List_Textures(VLine_Lists& V) {
    std::map<Int, Int> Index_Of;
    for (VLine& L : V.Lines.Rows()) {
        const Int LineType = L.Attr->LineType;
        const auto [At, New] =
            Index_Of.try_emplace(LineType, static_cast<Int>(V.Tex_List.Nb() + 1));
        if (New) V.Tex_List.Append(LineType);
        L.Tex_Index = At->second;
    }
}

// What changes takes everything inside it along.
void Nest(VLine_Lists& V) {
    for (Long I = 1; I <= V.Lines.Nb(); ++I) {
        const VLine& L = V.Lines[I];
        const VLine* Before = I == 1 ? nullptr : &V.Lines[I - 1];
        const bool New_Cell =
            !Before || Before->AreaLon != L.AreaLon || Before->AreaLat != L.AreaLat;
        const bool New_Layer = New_Cell || Before->Layer != L.Layer;
        const bool New_Group = New_Layer || Before->Attr->LineType != L.Attr->LineType;
        if (New_Cell) V.Cells.Append({L.AreaLon, L.AreaLat, V.Layers.Nb() + 1, 0});
        if (New_Layer) V.Layers.Append({L.Layer, V.Groups.Nb() + 1, 0});
        if (New_Group) V.Groups.Append({L.Attr->LineType, L.Tex_Index, I, 0});
        V.Cells[V.Cells.Nb()].Last_Layer = V.Layers.Nb();
        V.Layers[V.Layers.Nb()].Last_Group = V.Groups.Nb();
        V.Groups[V.Groups.Nb()].Last_Line = I;
    }
}

}  // namespace

VLinePt Wide_End_Point(VLinePt A, VLinePt B, bool Is_Last, Byte Tag) {
    const VLinePt R = Is_Last ? B : A, Other = Is_Last ? A : B;
    const Int Step = Tag == Tag_Wide ? Int{1} : Int{-1};
    const auto Moved = [&](Int From, Int Towards) {
        return static_cast<Int>(Towards > From ? From + Step : From - Step);
    };
    if (A == B) return R;
    if (A.X == B.X) return {A.X, Moved(R.Y, Other.Y)};
    if (A.Y == B.Y) return {Moved(R.X, Other.X), A.Y};
    const Slope L = Line_Coef({Double(A.X), Double(A.Y)}, {Double(B.X), Double(B.Y)});
    if (std::abs(B.X - A.X) > std::abs(B.Y - A.Y)) {
        const Int X = Moved(R.X, Other.X);
        return {X, Fix_Int(L.a * X + L.b)};
    }
    const Int Y = Moved(R.Y, Other.Y);
    return {Fix_Int((Y - L.b) / L.a), Y};
}

bool Bare_Line_Fits(std::span<const WPt> Line) {
    const Cell_Pos Area = Area_Of(Line);
    for (const WPt& P : Line) {
        const Loc_Area_Raw L = Pixel_Loc_In_Area_Raw(To_Pix(P), Area.AreaLon, Area.AreaLat);
        if (L.LocX > Highest_Int || L.LocY > Highest_Int) return false;
    }
    return true;
}

VLine_Lists VLine_Build() {
    VLine_Lists V;
    Convert_All(V);
    Exchange_Order(V.Lines, Layer_Key, Comes_Before);
    List_Textures(V);
    Nest(V);
    return V;
}
