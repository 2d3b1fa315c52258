// geometry/coarse_sort.h - sorting millions of entries: first by a coarse whole number, digit by
// digit, then by the real rule where that number is the same.
#pragma once

#include <algorithm>
#include <cstdint>
#include <span>
#include <vector>

#include "core/numbers.h"

struct Coarse_Entry {
    std::uint32_t Key;
    Long Place;  // the entry's own, from 0
};

/// Sorts by Key; entries of one key keep their order.
void Sort_By_Key(std::vector<Coarse_Entry>& List);

/// The places 0 to N - 1 in stable order. Comes_Before(i, j) is strict; Key(i) never falls where
/// the order rises.
template <typename Key_Of, typename Before>
std::vector<Coarse_Entry> Coarse_Sorted(Long N, Key_Of Key, Before Comes_Before) {
    constexpr std::ptrdiff_t Few = 24;
    std::vector<Coarse_Entry> List;
    List.reserve(static_cast<std::size_t>(N));
    for (Long I = 0; I < N; ++I) List.push_back({Key(I), I});
    Sort_By_Key(List);
    const auto Is_Before = [&](const Coarse_Entry& A, const Coarse_Entry& B) {
        return Comes_Before(A.Place, B.Place);
    };
    for (auto First = List.begin(); First != List.end();) {
        auto End = First + 1;
        while (End != List.end() && End->Key == First->Key) ++End;
        if (End - First > Few)
            std::stable_sort(First, End, Is_Before);
        else
            for (auto At = First + 1; At != End; ++At)
                std::rotate(std::upper_bound(First, At, *At, Is_Before), At, At + 1);
        First = End;
    }
    return List;
}
