// geometry/exchange_order.cpp - how far each group of equals has turned.
#include "geometry/exchange_order.h"

#include <bit>
#include <numeric>
#include <span>

namespace {

// Counts by place with sums over all places below one (Fenwick).
class Count_Tree {
public:
    explicit Count_Tree(std::size_t N) : Sum_(N + 1) {}

    void Add(std::size_t Place, Long Count) {
        for (std::size_t K = Place + 1; K < Sum_.size(); K += K & (~K + 1)) Sum_[K] += Count;
    }

    Long Below(std::size_t Place) const {
        Long Total = 0;
        for (std::size_t K = Place; K > 0; K -= K & (~K + 1)) Total += Sum_[K];
        return Total;
    }

    // The place whose Below is Rank and whose own count is 1.
    std::size_t Find(Long Rank) const {
        std::size_t K = 0;
        for (std::size_t Step = std::bit_floor(Sum_.size()); Step > 0; Step /= 2)
            if (K + Step < Sum_.size() && Sum_[K + Step] <= Rank) Rank -= Sum_[K += Step];
        return K;
    }

private:
    std::vector<Long> Sum_;
};

// Free places of a small group: a plain list beats the tree.
class Free_List {
public:
    explicit Free_List(std::size_t N) : Place_(N) { std::iota(Place_.begin(), Place_.end(), 0U); }
    std::size_t Take(Long Rank) {
        const auto At = Place_.begin() + Rank;
        const std::size_t Place = *At;
        Place_.erase(At);
        return Place;
    }

private:
    std::vector<std::size_t> Place_;
};

class Free_Tree {
public:
    explicit Free_Tree(std::size_t N) : Count_(N) {
        for (std::size_t K = 0; K < N; ++K) Count_.Add(K, 1);
    }
    std::size_t Take(Long Rank) {
        const std::size_t Place = Count_.Find(Rank);
        Count_.Add(Place, -1);
        return Place;
    }

private:
    Count_Tree Count_;
};

// Member k was put in before the first of the group and turned Turns[k] times with the k
// members before it. Undone from the last member back: the turns move the first of the group
// back among the free places, and the place before it is the member's own.
template <typename Free>
void Undo_Turns(std::span<Long> Members, std::span<const Long> Turns) {
    const std::vector<Long> Put(Members.begin(), Members.end());
    Free Places(Put.size());
    Long First = 0;
    for (std::size_t K = Put.size(); K-- > 0;) {
        const auto Size = static_cast<Long>(K + 1);
        First = (First + Size - Turns[K] % Size) % Size;
        const Long Own = First > 0 ? First - 1 : Size - 1;
        Members[Places.Take(Own)] = Put[K];
        if (First > 0) --First;
    }
}

}  // namespace

void Exchange_Turns(std::vector<Long>& Order, const std::vector<Long>& Group) {
    constexpr std::size_t Small_Group = 64;
    const std::size_t N = Order.size();
    std::vector<Long> Smaller(N);
    const Long Nb_Group = N == 0 ? 0 : Group[static_cast<std::size_t>(Order.back())] + 1;
    Count_Tree Seen(static_cast<std::size_t>(Nb_Group));
    for (std::size_t I = 0; I < N; ++I) {
        const auto G = static_cast<std::size_t>(Group[I]);
        Smaller[I] = Seen.Below(G);
        Seen.Add(G, 1);
    }
    std::vector<Long> Turns;
    for (std::size_t First = 0, End = 0; First < N; First = End) {
        const auto Smaller_Than = [&](std::size_t K) {
            return Smaller[static_cast<std::size_t>(Order[K])];
        };
        const Long G = Group[static_cast<std::size_t>(Order[First])];
        Turns.clear();
        for (End = First + 1; End < N && Group[static_cast<std::size_t>(Order[End])] == G; ++End)
            Turns.push_back(Smaller_Than(End) - Smaller_Than(End - 1));
        if (End - First < 2) continue;
        Turns.push_back(static_cast<Long>(First) - Smaller_Than(End - 1));
        const std::span<Long> Members{Order.data() + First, End - First};
        if (Members.size() <= Small_Group)
            Undo_Turns<Free_List>(Members, Turns);
        else
            Undo_Turns<Free_Tree>(Members, Turns);
    }
}
