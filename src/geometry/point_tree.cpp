// geometry/point_tree.cpp - building the tree, and switching its points.
#include "geometry/point_tree.h"

#include <algorithm>
#include <numeric>
#include <utility>

Point_Tree::Point_Tree(std::span<const Pix> Points)
    : Points(Points), Order(Points.size()), Leaf_Of(Points.size()), Is_On(Points.size()) {
    std::iota(Order.begin(), Order.end(), 0);
    Build(0, static_cast<Long>(Points.size()), -1);
}

Long Point_Tree::Build(Long First, Long Last, Long Parent) {
    Node N;
    N.First = First;
    N.Last = Last;
    N.Parent = Parent;
    if (First < Last) N.Low = N.High = Points[Order[First]];
    for (Long K = First; K < Last; ++K) {
        const Pix P = Points[Order[K]];
        N.Low = {std::min(N.Low.X, P.X), std::min(N.Low.Y, P.Y)};
        N.High = {std::max(N.High.X, P.X), std::max(N.High.Y, P.Y)};
    }
    const Long At = static_cast<Long>(Nodes.size());
    Nodes.push_back(N);
    if (Last - First <= Leaf_Size) {
        for (Long K = First; K < Last; ++K) Leaf_Of[Order[K]] = At;
        return At;
    }
    const bool Wide = N.High.X - N.Low.X > N.High.Y - N.Low.Y;
    const Long Middle = First + (Last - First) / 2;
    std::nth_element(Order.begin() + First, Order.begin() + Middle, Order.begin() + Last,
                     [&](Long I, Long J) {
                         return Wide ? Points[I].X < Points[J].X : Points[I].Y < Points[J].Y;
                     });
    const Long Left = Build(First, Middle, At);
    const Long Right = Build(Middle, Last, At);
    Nodes[At].Left = Left;
    Nodes[At].Right = Right;
    return At;
}

void Point_Tree::Thin_Out(const std::function<bool(Long)>& Is_Left) {
    std::erase_if(Order, [&](Long I) { return !Is_Left(I); });
    Nodes.clear();
    Build(0, static_cast<Long>(Order.size()), -1);
    for (const Long I : Order)
        if (std::exchange(Is_On[I], 0) != 0) Switch(I, true);
}

void Point_Tree::Switch(Long I, bool On) {
    if (static_cast<bool>(Is_On[I]) == On) return;
    Is_On[I] = On;
    for (Long At = Leaf_Of[I]; At >= 0; At = Nodes[At].Parent) Nodes[At].Nb_On += On ? 1 : -1;
}
