// geometry/sorted_points.cpp - sorting by a coarse key first, since there may be millions.
#include "geometry/sorted_points.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

#include "geometry/exchange_order.h"

namespace {

bool Comes_Before(Pix A, Pix B) {
    return A.X != B.X ? A.X < B.X : A.Y < B.Y;
}

// X as a whole number that never falls as X grows.
class Key_Of_X {
public:
    explicit Key_Of_X(std::span<const Pix> Points) {
        const auto [West, East] = std::minmax_element(Points.begin(), Points.end(),
                                                      [](Pix A, Pix B) { return A.X < B.X; });
        Low_ = West->X;
        const Double Span = East->X - Low_;
        const int Bits = std::min(static_cast<int>(std::bit_width(Points.size())) + Bits_More, 32);
        Most_ = std::ldexp(1.0, Bits) - 1.0;
        if (Span > 0.0 && std::isfinite(Span)) Scale_ = Most_ / Span;
    }

    std::uint32_t operator()(Pix P) const {
        if (Scale_ == 0.0) return 0;
        return static_cast<std::uint32_t>(std::min((P.X - Low_) * Scale_, Most_));
    }

private:
    // Digits cost a pass each, shared keys a comparison.
    static constexpr int Bits_More = 4;
    Double Low_ = 0.0, Scale_ = 0.0, Most_ = 0.0;
};

}  // namespace

std::vector<Long> Sorted_Points(std::span<const Pix> Points) {
    if (Points.empty()) return {};
    const auto At = [&](Long I) { return Points[static_cast<std::size_t>(I)]; };
    const auto Is_Before = [&](Long I, Long J) { return Comes_Before(At(I), At(J)); };
    const auto Nb = static_cast<Long>(Points.size());
    const Key_Of_X Key(Points);
    const auto Key_At = [&](Long I) { return Key(At(I)); };
    const std::vector<Coarse_Entry> Sorted = Coarse_Sorted(Nb, Key_At, Is_Before);
    std::vector<Long> Order(Sorted.size());
    for (std::size_t K = 0; K < Sorted.size(); ++K) Order[K] = Sorted[K].Place;
    // Equal points are rare (a triangle may repeat one); only then does the exchange sort leave
    // an order that the keys alone do not give.
    for (std::size_t K = 1; K < Order.size(); ++K)
        if (!Is_Before(Order[K - 1], Order[K])) return Exchange_Places(Nb, Key_At, Is_Before);
    return Order;
}

void Shift_Equal(std::span<Pix> Points, std::span<const Long> Order, Double Step) {
    Pix First;  // as they were, of the runs in progress
    Long Run_X = 0, Run_Y = 0;
    for (std::size_t K = 0; K < Order.size(); ++K) {
        Pix& P = Points[static_cast<std::size_t>(Order[K])];
        Run_X = K > 0 && P.X == First.X ? Run_X + 1 : 0;
        Run_Y = K > 0 && P.Y == First.Y ? Run_Y + 1 : 0;
        if (Run_X == 0) First.X = P.X;
        if (Run_Y == 0) First.Y = P.Y;
        if (Run_Y > 0) P.Y = P.Y + Step * Run_Y;
        if (Run_X > 0) P.X = P.X + Step * Run_X;
    }
}

Shared_X::Shared_X(std::span<const Pix> Points, std::span<const Long> Order) {
    const auto X_At = [&](Long I) { return Points[static_cast<std::size_t>(I)].X; };
    // The shifts keep the order all but always, and then nothing is shared.
    bool Rises = true;
    for (std::size_t K = 1; K < Order.size(); ++K) Rises &= X_At(Order[K - 1]) < X_At(Order[K]);
    if (Rises) return;
    std::vector<Entry> All;
    All.reserve(Points.size());
    for (const Long I : Order) All.emplace_back(X_At(I), I);
    std::sort(All.begin(), All.end());
    for (std::size_t K = 0; K < All.size(); ++K)
        if ((K > 0 && All[K - 1].first == All[K].first) ||
            (K + 1 < All.size() && All[K].first == All[K + 1].first))
            Entry_.push_back(All[K]);
}

std::span<const Shared_X::Entry> Shared_X::At(Double X) const {
    const auto First = std::lower_bound(Entry_.begin(), Entry_.end(), X,
                                        [](const Entry& E, Double V) { return E.first < V; });
    auto End = First;
    while (End != Entry_.end() && End->first == X) ++End;
    return {First, End};
}
