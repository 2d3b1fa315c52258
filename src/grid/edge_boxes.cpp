// grid/edge_boxes.cpp - keeping the nodes right.
#include "grid/edge_boxes.h"

void Edge_Boxes::Reset(Long N) {
    Node Empty;
    for (std::size_t C = 0; C < Fan; ++C) Empty.Set(C, None);
    std::size_t Count = static_cast<std::size_t>(N), Lv = 0;
    do {
        Count = (Count + Fan - 1) / Fan;
        if (Level_.size() <= Lv) Level_.emplace_back();
        Level_[Lv++].assign(Count, Empty);
    } while (Count > 1);
    Level_.resize(Lv);
}

void Edge_Boxes::Put(Long E, Pix P1, Pix P2) {
    const Double ex = std::abs(P2.X - P1.X), ey = std::abs(P2.Y - P1.Y);
    const Single Steep = ex > 0.0 && !(ey < Steepest * ex) ? 1.0F : 0.0F;
    Set(E, {Rounded(std::min(P1.X, P2.X)), Rounded(std::min(P1.Y, P2.Y)),
            Rounded(std::max(P1.X, P2.X)), Rounded(std::max(P1.Y, P2.Y)), Steep});
}

Edge_Boxes::Box_Single Edge_Boxes::Union(const Node& N) {
    Box_Single B = None;
    for (std::size_t C = 0; C < Fan; ++C) {
        B.LX = std::min(B.LX, N.LX[C]);
        B.LY = std::min(B.LY, N.LY[C]);
        B.HX = std::max(B.HX, N.HX[C]);
        B.HY = std::max(B.HY, N.HY[C]);
        B.Steep = std::max(B.Steep, N.Steep[C]);
    }
    return B;
}

void Edge_Boxes::Refresh_All() {
    for (std::size_t Lv = 1; Lv < Level_.size(); ++Lv)
        for (std::size_t K = 0; K < Level_[Lv - 1].size(); ++K)
            Level_[Lv][K / Fan].Set(K % Fan, Union(Level_[Lv - 1][K]));
}

void Edge_Boxes::Refresh(Long E) {
    std::size_t K = static_cast<std::size_t>(E) / Fan;
    for (std::size_t Lv = 1; Lv < Level_.size(); ++Lv, K /= Fan) {
        const Box_Single B = Union(Level_[Lv - 1][K]);
        Node& Up = Level_[Lv][K / Fan];
        if (B == Up.Get(K % Fan)) return;
        Up.Set(K % Fan, B);
    }
}
