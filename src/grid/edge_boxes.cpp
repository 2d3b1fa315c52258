// grid/edge_boxes.cpp - keeping the nodes right.
#include "grid/edge_boxes.h"

void Edge_Boxes::Reset(Long N) {
    Node Empty;
    Empty.LX.fill(Far);
    Empty.LY.fill(Far);
    Empty.HX.fill(-Far);
    Empty.HY.fill(-Far);
    std::size_t Count = static_cast<std::size_t>(N), Lv = 0;
    do {
        Count = (Count + Fan - 1) / Fan;
        if (Level_.size() <= Lv) Level_.emplace_back();
        Level_[Lv++].assign(Count, Empty);
    } while (Count > 1);
    Level_.resize(Lv);
}

void Edge_Boxes::Set(Long E, const Box_Single& B) {
    Node& N = Level_[0][static_cast<std::size_t>(E) / Fan];
    const std::size_t C = static_cast<std::size_t>(E) % Fan;
    N.LX[C] = B.LX;
    N.LY[C] = B.LY;
    N.HX[C] = B.HX;
    N.HY[C] = B.HY;
}

void Edge_Boxes::Put(Long E, Pix P1, Pix P2) {
    Set(E, {Rounded(std::min(P1.X, P2.X)), Rounded(std::min(P1.Y, P2.Y)),
            Rounded(std::max(P1.X, P2.X)), Rounded(std::max(P1.Y, P2.Y))});
}

Edge_Boxes::Box_Single Edge_Boxes::Union(const Node& N) const {
    Box_Single B = None;
    for (std::size_t C = 0; C < Fan; ++C) {
        B.LX = std::min(B.LX, N.LX[C]);
        B.LY = std::min(B.LY, N.LY[C]);
        B.HX = std::max(B.HX, N.HX[C]);
        B.HY = std::max(B.HY, N.HY[C]);
    }
    return B;
}

void Edge_Boxes::Refresh_All() {
    for (std::size_t Lv = 1; Lv < Level_.size(); ++Lv)
        for (std::size_t K = 0; K < Level_[Lv - 1].size(); ++K) {
            const Box_Single B = Union(Level_[Lv - 1][K]);
            Node& Up = Level_[Lv][K / Fan];
            Up.LX[K % Fan] = B.LX;
            Up.LY[K % Fan] = B.LY;
            Up.HX[K % Fan] = B.HX;
            Up.HY[K % Fan] = B.HY;
        }
}

void Edge_Boxes::Refresh(Long E) {
    std::size_t K = static_cast<std::size_t>(E) / Fan;
    for (std::size_t Lv = 1; Lv < Level_.size(); ++Lv, K /= Fan) {
        const Box_Single B = Union(Level_[Lv - 1][K]);
        Node& Up = Level_[Lv][K / Fan];
        const std::size_t C = K % Fan;
        if (B == Box_Single{Up.LX[C], Up.LY[C], Up.HX[C], Up.HY[C]}) return;
        Up.LX[C] = B.LX;
        Up.LY[C] = B.LY;
        Up.HX[C] = B.HX;
        Up.HY[C] = B.HY;
    }
}
