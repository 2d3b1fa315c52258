// shapes/poly/poly_nesting.cpp - nesting by text, and the polygons that nothing contains.
#include "shapes/poly/poly_nesting.h"

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "geometry/box_index.h"
#include "geometry/exchange_order.h"
#include "shapes/poly/edge_tree.h"
#include "shapes/poly/nested_rays.h"

namespace {

constexpr std::size_t Group_Name_Length = 3;

std::string_view Group_Name(const std::string& Text) {
    return std::string_view(Text).substr(0, Group_Name_Length);
}

// Boxes of an outline and its tree, which points into them.
struct Prepared_Outline {
    explicit Prepared_Outline(std::span<const WPt> Pts)
        : Memory(Edge_Tree::Size(static_cast<Long>(Pts.size()))), Tree(Pts, true, Memory) {}
    std::vector<Box_Pix> Memory;
    Edge_Tree Tree;
};

// Whether any two polygons cross or touch, as far as the budget goes.
bool Search_Crossing(Box_Budget& Budget) {
    const auto& Poly = The_Nesting.Poly;
    std::vector<Box_Pix> Boxes(Poly.size());
    for (std::size_t I = 0; I < Poly.size(); ++I)
        for (const WPt& P : Poly[I].Points()) Boxes[I].Add(To_Pix(P));
    const Box_Index Index(Boxes);
    std::vector<std::unique_ptr<Prepared_Outline>> Prepared(Poly.size());
    const auto Tree = [&](std::size_t I) -> const Edge_Tree& {
        if (!Prepared[I]) Prepared[I] = std::make_unique<Prepared_Outline>(Poly[I].Points());
        return Prepared[I]->Tree;
    };
    bool Found = false;
    for (std::size_t A = 0; A < Poly.size() && !Found && !Budget.Is_Spent(); ++A)
        Index.Each_Meeting(Boxes[A], [&](Long Place) {
            const auto B = static_cast<std::size_t>(Place);
            if (A < B && !Found && !Budget.Is_Spent())
                Found = Outlines_Meet(Tree(A), Tree(B), Budget);
        });
    return Found;
}

Outlines All_Outlines() {
    Outlines Lines;
    Lines.Point.reserve(Tab_WPt.Rows().size());
    for (const PolyRef& R : The_Nesting.Poly) Lines.Add(R);
    return Lines;
}

bool Polys_Cross() {
    Box_Budget Budget(Tab_WPt.Rows().size());
    if (Search_Crossing(Budget)) return true;
    if (!Budget.Is_Spent()) return false;
    const Outlines Lines = All_Outlines();
    if (Sweep_Edges({Lines.Point, Lines.First}).Apart) return false;
    Budget.Left = Box_Budget::Endless;
    return Search_Crossing(Budget);
}

// Finds for one outer polygon after the other what lies inside it.
class Outer_Search {
public:
    Outer_Search(const Outlines& Lines, std::span<const Long> Order, std::span<const Long> Owner)
        : Lines_(Lines),
          Rays_(Lines, Order),
          Firsts_(First_Points(Lines)),
          Used_(Lines.Nb()),
          Placed_(Lines.Nb()),
          Also_(Lines.Nb()) {
        // A ray that runs exactly through vertices may count oddly from anywhere north of them.
        for (std::size_t I = 0; I < Lines.Nb(); ++I)
            for (const auto& [X, Point] : Rays_.Sharing(First_Of(I).X))
                Also_[static_cast<std::size_t>(Owner[static_cast<std::size_t>(Point)])].push_back(
                    static_cast<Long>(I));
    }

    bool Is_Placed(std::size_t I) const { return Placed_[I] != 0; }
    void Mark_Used(std::size_t I) { Used_[I] = 1; }

    void Add(std::size_t This) {
        Outer O{static_cast<Long>(This), The_Nesting.Inner.size(), 0};
        Placed_[This] = 1;
        if (Lines_.Ring(This).size() >= 3) Take_Inner(This);
        O.End_Inner = The_Nesting.Inner.size();
        The_Nesting.Outer.push_back(O);
    }

private:
    Pix First_Of(std::size_t I) const { return Lines_.Ring(I).front(); }

    static std::vector<Box_Pix> First_Points(const Outlines& Lines) {
        std::vector<Box_Pix> Firsts(Lines.Nb());
        for (std::size_t I = 0; I < Lines.Nb(); ++I) Firsts[I].Add(Lines.Ring(I).front());
        return Firsts;
    }

    // What lies inside each polygon that nothing contains, once and for all.
    void Find_Inside() {
        const std::vector<Long> Around = Rays_.Around();
        if (Around.empty()) return;
        Inside_.resize(Around.size());
        std::vector<Long> Outermost(Around.size(), -1), Way;
        for (std::size_t I = 0; I < Around.size(); ++I) {
            auto At = static_cast<Long>(I);
            for (; At >= 0 && Outermost[static_cast<std::size_t>(At)] < 0;
                 At = Around[static_cast<std::size_t>(At)])
                Way.push_back(At);
            const Long Root = At >= 0 ? Outermost[static_cast<std::size_t>(At)] : Way.back();
            for (; !Way.empty(); Way.pop_back())
                Outermost[static_cast<std::size_t>(Way.back())] = Root;
            if (Root != static_cast<Long>(I))
                Inside_[static_cast<std::size_t>(Root)].push_back(static_cast<Long>(I));
        }
    }

    void Take(Long Other) {
        const auto I = static_cast<std::size_t>(Other);
        Used_[I] = Placed_[I] = 1;
        The_Nesting.Inner.push_back(Other);
    }

    void Take_Inner(std::size_t This) {
        if (Left_ < 0 && !std::exchange(Is_Searched_, true)) Find_Inside();
        if (!Inside_.empty()) {
            for (const Long Other : Inside_[This]) Take(Other);
            return;
        }
        std::vector<Long> Others = Also_[This];
        Firsts_.Each_Meeting(Ray_Box(Lines_.Ring(This)), [&](Long I) { Others.push_back(I); });
        std::sort(Others.begin(), Others.end());
        Others.erase(std::unique(Others.begin(), Others.end()), Others.end());
        for (const Long Other : Others) {
            const auto I = static_cast<std::size_t>(Other);
            if (I == This || Used_[I] != 0) continue;
            const Ray_Hit Hit = Rays_.Cast(First_Of(I), This);
            if (Hit.Odd && Hit.Nearest < Ray_Limit) Take(Other);
        }
        Left_ -= static_cast<std::int64_t>(Others.size());
    }

    const Outlines& Lines_;
    Nested_Rays Rays_;
    Box_Index Firsts_;
    std::vector<Byte> Used_;    // lies inside another one, or is the first outer polygon
    std::vector<Byte> Placed_;  // is an outer polygon or lies inside one
    std::vector<std::vector<Long>> Also_;
    std::int64_t Left_ = Ray_Budget(Lines_.Nb());
    bool Is_Searched_ = false;
    std::vector<std::vector<Long>> Inside_;  // of each outermost polygon, when found out at once
};

void Find_Outers() {
    if (The_Nesting.Poly.size() == 1) {
        The_Nesting.Outer.push_back({});
        return;
    }
    Outlines Lines = All_Outlines();
    const std::vector<Long> Order = Sorted_Points(Lines.Point);
    Shift_Equal(Lines.Point, Order, 1e-05);
    const std::vector<Long> Owner = Lines.Owners();
    Outer_Search Search(Lines, Order, Owner);
    const auto Poly_Of = [&](Long Point) {
        return static_cast<std::size_t>(Owner[static_cast<std::size_t>(Point)]);
    };
    Search.Mark_Used(Poly_Of(Order[0]));
    for (const Long Point : Order)
        if (!Search.Is_Placed(Poly_Of(Point))) Search.Add(Poly_Of(Point));
}

}  // namespace

void Imbric_Order() {
    std::vector<Long> Named;
    for (Long I = 1; I <= Nb_WPoly; ++I)
        if (!Tab_WPoly[I].Attr->Imbrication.empty()) Named.push_back(I);
    if (Named.empty()) return;
    const auto Text = [&](Long K) -> const std::string& {
        return Tab_WPoly[Named[static_cast<std::size_t>(K)]].Attr->Imbrication;
    };
    const std::vector<Long> Order = Exchange_Places(
        static_cast<Long>(Named.size()), [](Long) { return 0U; },
        [&](Long I, Long J) { return Text(I) < Text(J); });
    const auto Poly = [&](std::size_t K) -> WPoly& {
        return Tab_WPoly[Named[static_cast<std::size_t>(Order[K])]];
    };
    for (std::size_t First = 0, End = 0; First < Order.size(); First = End) {
        const std::string_view Name = Group_Name(Text(Order[First]));
        for (End = First; End < Order.size() && Group_Name(Text(Order[End])) == Name; ++End)
            Poly(End).Draw_Order = static_cast<Long>(End - First + 1);
        for (std::size_t K = First; K < End; ++K) Poly(K).Group_Root = Poly(End - 1).Num;
    }
    Has_Imbric = 1;
}

Int Auto_Order() {
    Has_Auto = 0;
    The_Nesting = {};
    for (Long I = 1; I <= Nb_WPoly; ++I)
        if (Tab_WPoly[I].Attr->Imbrication.empty()) The_Nesting.Poly.push_back({I});
    if (The_Nesting.Poly.empty()) return 0;
    Has_Auto = 1;
    if (Polys_Cross()) {
        The_Nesting = {};
        return 4;
    }
    Find_Outers();
    return 0;
}
