// shapes/poly/nesting_tree.cpp - the containment tree of each outer polygon, and its numbers.
#include <algorithm>
#include <utility>

#include "geometry/box_index.h"
#include "shapes/poly/nested_rays.h"
#include "shapes/poly/poly_nesting.h"

namespace {

// A polygon in the tree. Nodes count from 1, so that 0 can say "none"; 1 is the root.
struct Node {
    std::size_t Group_Ix = 0;
    bool Is_Line = false;  // it has two points and cannot contain anything
    Long Level = 1;
    bool Branch = false;  // it has two or more children, or is the root
    Long Parent = 0;
    Long First_Child = 0, Last_Child = 0;
    Long Next_Sibling = 0;
    bool Done = false;
};

// The polygons of one group: the outer one, then those inside it.
class Nesting_Tree {
public:
    explicit Nesting_Tree(const Outer& O);
    void Number();
    void Write() const;

private:
    const Node& At(Long N) const { return Node_[static_cast<std::size_t>(N)]; }
    Node& At(Long N) { return Node_[static_cast<std::size_t>(N)]; }
    void Build(const Outlines& Lines, std::span<const Long> Order);
    void Add(std::size_t Group_Ix, Long Parent, bool Is_Line);
    void Number_Branch(Long M);
    void Number_Chain(Long C);
    void Number_Node(Long N);

    std::vector<Long> Group_;  // polygons, from 0
    std::vector<Long> Order_;  // the number of each
    std::vector<Node> Node_{Node{}};
    Long Count_ = 0;
};

// Where the ray from a point meets the outline that contains it first, among those that have a
// node. Of two that are met at the same Y the older node counts.
class Parent_Search {
public:
    Parent_Search(const Outlines& Lines, std::span<const Long> Order)
        : Lines_(Lines), Rays_(Lines, Order), Boxes_(Boxes_Of(Lines)), Owner_(Lines.Owners()) {}

    Long Owner(Long Point) const { return Owner_[static_cast<std::size_t>(Point)]; }

    // Of the outline that a point belongs to; it has no node yet.
    Long Find(Long Point, const std::vector<Long>& Node_Of) {
        if (Left_ < 0 && !std::exchange(Is_Searched_, true)) Around_ = Rays_.Around();
        if (!Around_.empty()) return Find_Around(Owner(Point), Node_Of);
        const Pix From = Lines_.Point[static_cast<std::size_t>(Point)];
        Long Parent = 1;
        Double Nearest = Ray_Limit;
        const auto Try = [&](Long Poly) {
            const auto I = static_cast<std::size_t>(Poly);
            const Long N = Node_Of[I];
            if (N == 0 || Lines_.Ring(I).size() < 3) return;
            --Left_;
            const Ray_Hit Hit = Rays_.Cast(From, I);
            if (!Hit.Odd || Hit.Nearest >= Ray_Limit) return;
            if (Hit.Nearest > Nearest || (Hit.Nearest == Nearest && N > Parent)) return;
            Nearest = Hit.Nearest;
            Parent = N;
        };
        Box_Pix Here;
        Here.Add(From);
        Boxes_.Each_Meeting(Here, Try);
        // A ray that runs exactly through vertices may count oddly from anywhere north of them.
        for (const auto& [X, Point] : Rays_.Sharing(From.X)) Try(Owner(Point));
        return Parent;
    }

private:
    Long Find_Around(Long Poly, const std::vector<Long>& Node_Of) const {
        do Poly = Around_[static_cast<std::size_t>(Poly)];
        while (Poly >= 0 && Node_Of[static_cast<std::size_t>(Poly)] == 0);
        return Poly >= 0 ? Node_Of[static_cast<std::size_t>(Poly)] : 1;
    }

    static std::vector<Box_Pix> Boxes_Of(const Outlines& Lines) {
        std::vector<Box_Pix> Boxes(Lines.Nb());
        for (std::size_t I = 0; I < Lines.Nb(); ++I) Boxes[I] = Ray_Box(Lines.Ring(I));
        return Boxes;
    }

    const Outlines& Lines_;
    Nested_Rays Rays_;
    Box_Index Boxes_;
    std::vector<Long> Owner_;
    std::int64_t Left_ = Ray_Budget(Lines_.Nb());
    bool Is_Searched_ = false;
    std::vector<Long> Around_;  // the outline around each, when found out at once
};

Nesting_Tree::Nesting_Tree(const Outer& O) : Group_{O.Poly} {
    const auto First = The_Nesting.Inner.begin();
    Group_.insert(Group_.end(), First + static_cast<std::ptrdiff_t>(O.First_Inner),
                  First + static_cast<std::ptrdiff_t>(O.End_Inner));
    Order_.resize(Group_.size());
    Outlines Lines;
    if (Group_.size() > 1)
        for (const Long Poly : Group_) Lines.Add(The_Nesting.Poly[static_cast<std::size_t>(Poly)]);
    const std::vector<Long> Order = Sorted_Points(Lines.Point);
    Shift_Equal(Lines.Point, Order, 0.0001);
    Build(Lines, Order);
}

void Nesting_Tree::Build(const Outlines& Lines, std::span<const Long> Order) {
    Add(0, 0, false);
    At(1).Branch = true;
    if (Group_.size() == 1) return;
    Parent_Search Search(Lines, Order);
    std::vector<Long> Node_Of(Group_.size());
    Node_Of[0] = 1;
    for (const Long Point : Order.subspan(1)) {
        const auto G = static_cast<std::size_t>(Search.Owner(Point));
        if (Node_Of[G] != 0) continue;
        const Long Parent = Search.Find(Point, Node_Of);
        Add(G, Parent, Lines.Ring(G).size() < 3);
        Node_Of[G] = static_cast<Long>(Node_.size()) - 1;
    }
}

void Nesting_Tree::Add(std::size_t Group_Ix, Long Parent, bool Is_Line) {
    const auto N = static_cast<Long>(Node_.size());
    Node_.push_back({.Group_Ix = Group_Ix, .Is_Line = Is_Line, .Parent = Parent});
    if (Parent == 0) return;
    Node& P = At(Parent);
    At(N).Level = P.Level + 1;
    if (P.First_Child == 0) {
        P.First_Child = N;
    } else {
        P.Branch = true;
        At(P.Last_Child).Next_Sibling = N;
    }
    P.Last_Child = N;
}

void Nesting_Tree::Number_Node(Long N) {
    Order_[At(N).Group_Ix] = ++Count_;
    At(N).Done = true;
}

// From the end of the chain of only children under C up to C. A line at its end gets no number.
void Nesting_Tree::Number_Chain(Long C) {
    Long N = C;
    while (At(N).First_Child != 0 && !At(At(N).First_Child).Branch) N = At(N).First_Child;
    for (; !At(N).Branch; N = At(N).Parent) {
        if (At(N).Is_Line) {
            At(N).Done = true;
            N = At(N).Parent;
        }
        Number_Node(N);
    }
}

void Nesting_Tree::Number_Branch(Long M) {
    for (Long C = At(M).First_Child; C != 0; C = At(C).Next_Sibling)
        if (!At(C).Done && !At(C).Is_Line && !At(C).Branch) Number_Chain(C);
    for (Long C = At(M).First_Child; C != 0; C = At(C).Next_Sibling) At(C).Done = true;
    Number_Node(M);
}

// The deepest branches first, those of one depth in list order.
void Nesting_Tree::Number() {
    std::vector<Long> Branches;
    for (Long N = 1; N < static_cast<Long>(Node_.size()); ++N)
        if (At(N).Branch) Branches.push_back(N);
    std::stable_sort(Branches.begin(), Branches.end(),
                     [&](Long A, Long B) { return At(A).Level > At(B).Level; });
    for (const Long M : Branches)
        if (!At(M).Done) Number_Branch(M);
}

void Nesting_Tree::Write() const {
    const auto WPoly_Of = [](Long Poly) -> WPoly& {
        return Tab_WPoly[The_Nesting.Poly[static_cast<std::size_t>(Poly)].WPoly_Ix];
    };
    const Long Root = WPoly_Of(Group_[0]).Num;
    for (std::size_t G = 0; G < Group_.size(); ++G) {
        WPoly_Of(Group_[G]).Draw_Order = Order_[G];
        WPoly_Of(Group_[G]).Group_Root = Root;
    }
}

}  // namespace

void Auto_Tree() {
    for (const Outer& O : The_Nesting.Outer) {
        Nesting_Tree Tree(O);
        Tree.Number();
        Tree.Write();
    }
    The_Nesting = {};
}
