// grid/sorted_points.cpp - sorting by a coarse key first, since there may be millions.
#include "grid/sorted_points.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

#include "grid/exchange_order.h"

namespace {

struct Keyed {
    std::uint32_t Key;
    Long Place;
};

bool Comes_Before(Pix A, Pix B) {
    return A.X != B.X ? A.X < B.X : A.Y < B.Y;
}

// X as a whole number that never falls as X grows.
std::vector<Keyed> Keys_Of(std::span<const Pix> Points) {
    const auto [West, East] =
        std::minmax_element(Points.begin(), Points.end(), [](Pix A, Pix B) { return A.X < B.X; });
    const Double Low = West->X, Span = East->X - West->X;
    const Double Scale = Span > 0.0 && std::isfinite(Span) ? 4294967040.0 / Span : 0.0;
    std::vector<Keyed> Keys(Points.size());
    for (std::size_t I = 0; I < Points.size(); ++I) {
        const Double Key = Scale > 0.0 ? (Points[I].X - Low) * Scale : 0.0;
        Keys[I] = {static_cast<std::uint32_t>(std::min(Key, 4294967295.0)), static_cast<Long>(I)};
    }
    return Keys;
}

void Sort_By_Key(std::vector<Keyed>& Keys) {
    constexpr int Bits = 11, Passes = 3;
    constexpr std::size_t Buckets = 1U << Bits;
    std::vector<Keyed> Other(Keys.size());
    for (int Pass = 0; Pass < Passes; ++Pass) {
        const auto Bucket = [&](const Keyed& K) { return K.Key >> (Pass * Bits) & (Buckets - 1); };
        std::array<std::size_t, Buckets + 1> Start{};
        for (const Keyed& K : Keys) ++Start[Bucket(K) + 1];
        for (std::size_t B = 0; B < Buckets; ++B) Start[B + 1] += Start[B];
        for (const Keyed& K : Keys) Other[Start[Bucket(K)]++] = K;
        Keys.swap(Other);
    }
}

}  // namespace

std::vector<Long> Sorted_Points(std::span<const Pix> Points) {
    std::vector<Long> Order;
    if (Points.empty()) return Order;
    const auto At = [&](Long I) { return Points[static_cast<std::size_t>(I)]; };
    std::vector<Keyed> Keys = Keys_Of(Points);
    Sort_By_Key(Keys);
    for (auto First = Keys.begin(); First != Keys.end();) {
        auto End = First + 1;
        while (End != Keys.end() && End->Key == First->Key) ++End;
        if (End - First > 1)
            std::sort(First, End, [&](const Keyed& A, const Keyed& B) {
                return Comes_Before(At(A.Place), At(B.Place));
            });
        First = End;
    }
    Order.reserve(Keys.size());
    for (const Keyed& K : Keys) Order.push_back(K.Place);
    // Equal points are rare (a triangle may repeat one); only then does the exchange sort leave
    // an order that the keys alone do not give.
    for (std::size_t K = 1; K < Order.size(); ++K)
        if (!Comes_Before(At(Order[K - 1]), At(Order[K])))
            return Exchange_Places(static_cast<Long>(Points.size()),
                                   [&](Long I, Long J) { return Comes_Before(At(I), At(J)); });
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
