// geometry/edge_boxes.cpp - keeping the nodes right.
#include "geometry/edge_boxes.h"

#include "geometry/coarse_sort.h"

namespace {

// The bits of V with a gap behind each.
std::uint32_t Spread(std::uint32_t V) {
    V = (V | V << 8) & 0x00FF00FFU;
    V = (V | V << 4) & 0x0F0F0F0FU;
    V = (V | V << 2) & 0x33333333U;
    return (V | V << 1) & 0x55555555U;
}

// Where V lies between Low and High, in 16 bits.
std::uint32_t Part_Of_Span(Single V, Single Low, Single High) {
    constexpr Single Most = 65535.0F;
    const Single Part = High > Low ? (V - Low) / (High - Low) : 0.0F;
    return Part > 0.0F ? static_cast<std::uint32_t>(std::min(Part, 1.0F) * Most) : 0U;
}

}  // namespace

void Edge_Boxes::Reset(Long N) {
    Nb_ = N;
    Nb_Left_ = N;
    Nb_Query_ = Nb_Seen_ = 0;
    Slot_.clear();
    Edge_.clear();
    Slab_.clear();
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
    // The slabs above have their direction and grow.
    for (std::size_t Lv = 0, S = Slot(E); Lv < Slab_.size(); ++Lv, S /= Fan) {
        Slab& Of = Slab_[Lv][S];
        if (Lv == 0) Of = Across(P1, P2);
        Of.Add(P1, P2);
    }
    Set(Slot(E), {Rounded(std::min(P1.X, P2.X)), Rounded(std::min(P1.Y, P2.Y)),
                  Rounded(std::max(P1.X, P2.X)), Rounded(std::max(P1.Y, P2.Y)), Steep});
}

Edge_Boxes::Slab Edge_Boxes::Across(Pix P1, Pix P2) {
    const Double dx = P2.X - P1.X, dy = P2.Y - P1.Y, Length = std::hypot(dx, dy);
    Slab S;
    if (Length > 0.0) S.nx = -dy / Length, S.ny = dx / Length;
    return S;
}

// The mean direction is that of the doubled angles, since edges lead to and fro; long edges weigh
// more.
void Edge_Boxes::Lay_Slabs(std::size_t Lv, std::span<const std::array<Pix, 2>> Ends) {
    std::vector<Slab>& Slabs = Slab_[Lv];
    std::vector<Pix> Sum(Slabs.size());
    const auto Of = [&](std::size_t E) { return Slot(static_cast<Long>(E)) >> (3 * Lv); };
    const auto Each_Edge = [&](const auto& Visit) {
        for (std::size_t E = 0; E < Ends.size(); ++E)
            if (Get(Slot(static_cast<Long>(E))).LX < Far) Visit(Of(E), Ends[E][0], Ends[E][1]);
    };
    Each_Edge([&](std::size_t S, Pix P1, Pix P2) {
        const Double dx = P2.X - P1.X, dy = P2.Y - P1.Y, Length = std::hypot(dx, dy);
        if (!(Length > 0.0)) return;
        Sum[S].X += (dx * dx - dy * dy) / Length;
        Sum[S].Y += 2 * dx * dy / Length;
    });
    for (std::size_t S = 0; S < Slabs.size(); ++S) {
        const Double Angle = std::atan2(Sum[S].Y, Sum[S].X) / 2;
        Slabs[S] = {.nx = -std::sin(Angle), .ny = std::cos(Angle)};
    }
    Each_Edge([&](std::size_t S, Pix P1, Pix P2) { Slabs[S].Add(P1, P2); });
}

// How much the slabs of groups of edges cover inside their boxes, each level taken by itself.
Double Edge_Boxes::Lay_All_Slabs(std::span<const std::array<Pix, 2>> Ends) {
    Double Sum = 0.0;
    Slab_.resize(Level_.size());
    for (std::size_t Lv = 0; Lv < Level_.size(); ++Lv) {
        Slab_[Lv].assign(Level_[Lv].size() * Fan, {});
        Lay_Slabs(Lv, Ends);
        for (std::size_t S = 0; Lv > 0 && S < Slab_[Lv].size(); ++S) {
            const Box_Single B = Level_[Lv][S / Fan].Get(S % Fan);
            if (B.LX <= B.HX)
                Sum += (Slab_[Lv][S].High - Slab_[Lv][S].Low) *
                       std::hypot(Double{B.HX} - B.LX, Double{B.HY} - B.LY);
        }
    }
    return Sum;
}

void Edge_Boxes::Lay_Slabs(const std::function<std::array<Pix, 2>(Long)>& Ends_Of) {
    std::vector<std::array<Pix, 2>> Ends;
    for (Long E = 0; E < Nb_; ++E) Ends.push_back(Ends_Of(E));
    Nb_With_Slab_ = Nb_Left_;
    const Double As_It_Is = Lay_All_Slabs(Ends);
    // Edges that follow each other may be more alike than those that lie together, or less.
    Sort_The_Other_Way();
    if (Lay_All_Slabs(Ends) <= As_It_Is) return;
    Sort_The_Other_Way();
    Lay_All_Slabs(Ends);
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
    std::size_t K = Slot(E) / Fan;
    for (std::size_t Lv = 1; Lv < Level_.size(); ++Lv, K /= Fan) {
        const Box_Single B = Union(Level_[Lv - 1][K]);
        Node& Up = Level_[Lv][K / Fan];
        if (B == Up.Get(K % Fan)) return;
        Up.Set(K % Fan, B);
    }
}

void Edge_Boxes::Settle() {
    Refresh_All();
    if (!Is_Overlaid()) return;
    Sort_By_Place();
    Refresh_All();
}

// How many boxes of a level lie over a place is what a query there meets. In order that is one or
// two at each level.
bool Edge_Boxes::Is_Overlaid() const {
    constexpr Double Most_Over_Each_Other = 3.0;
    const Box_Single All = Union(Level_.back()[0]);
    const Double Whole = (Double{All.HX} - All.LX) * (Double{All.HY} - All.LY);
    for (std::size_t Lv = 1; Lv + 1 < Level_.size(); ++Lv) {
        Double Sum = 0.0;
        for (const Node& N : Level_[Lv])
            for (std::size_t C = 0; C < Fan; ++C)
                if (N.LX[C] <= N.HX[C])
                    Sum += (Double{N.HX[C]} - N.LX[C]) * (Double{N.HY[C]} - N.LY[C]);
        if (Sum > Most_Over_Each_Other * Whole) return true;
    }
    return false;
}

void Edge_Boxes::Sort_The_Other_Way() {
    if (Slot_.empty()) {
        Sort_By_Place();
        Refresh_All();
        return;
    }
    std::vector<Box_Single> Old;
    for (Long E = 0; E < Nb_; ++E) Old.push_back(Get(Slot(E)));
    Slot_.clear();
    Edge_.clear();
    for (std::size_t E = 0; E < Old.size(); ++E) Set(E, Old[E]);
    Refresh_All();
}

// Along a curve that fills the outline's box, its quarters one after the other.
void Edge_Boxes::Sort_By_Place() {
    const Box_Single All = Union(Level_.back()[0]);
    std::vector<Coarse_Entry> List;
    std::vector<Box_Single> Old;
    List.reserve(static_cast<std::size_t>(Nb_));
    Old.reserve(static_cast<std::size_t>(Nb_));
    for (Long E = 0; E < Nb_; ++E) {
        const Box_Single B = Get(static_cast<std::size_t>(E));
        Old.push_back(B);
        List.push_back({Spread(Part_Of_Span(B.LX, All.LX, All.HX)) |
                            Spread(Part_Of_Span(B.LY, All.LY, All.HY)) << 1,
                        E});
    }
    Sort_By_Key(List);
    Slot_.resize(List.size());
    Edge_.resize(Level_[0].size() * Fan, -1);
    for (std::size_t S = 0; S < List.size(); ++S) {
        const auto E = static_cast<std::size_t>(List[S].Place);
        Edge_[S] = List[S].Place;
        Slot_[E] = static_cast<Long>(S);
        Set(S, Old[E]);
    }
}
