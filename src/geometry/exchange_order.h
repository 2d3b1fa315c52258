// geometry/exchange_order.h - the order that an exchange sort leaves, in n log n.
//
// The program's lists are sorted by exchanges: i from 1, j above i, swapped when entry j comes
// before entry i. The order of equal entries that follows from those loops shows in the files,
// so every list of the program is put in order here and nowhere else.
//
// How it works: the loops leave the same order as putting the entries in one by one, each at
// the end of the group of its equals, where each entry put in turns every group of greater
// entries by one (its first goes to its end). So the order inside a group follows from the
// number of smaller entries that stood before each of its members.
#pragma once

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

#include "core/table.h"
#include "geometry/coarse_sort.h"

/// Turns a stable order into the one of the exchange sort. Order holds the entries' first
/// places, counted from 0, in stable order; Group[i] is the number of the group of equals that
/// entry i belongs to, ascending from 0.
void Exchange_Turns(std::vector<Long>& Order, const std::vector<Long>& Group);

/// The first places, from 0, of N entries in the order that the exchange sort leaves.
/// Comes_Before(i, j) tells of two first places whether i strictly sorts before j; Key(i) is a
/// whole number that never falls where the order rises.
template <typename Key_Of, typename Before>
std::vector<Long> Exchange_Places(Long N, Key_Of Key, Before Comes_Before) {
    const std::vector<Coarse_Entry> Sorted = Coarse_Sorted(N, Key, Comes_Before);
    std::vector<Long> Order(Sorted.size()), Group(Sorted.size());
    bool Is_As_Before = true;
    Long G = 0;
    for (std::size_t K = 0; K < Sorted.size(); ++K) {
        if (K > 0 && Comes_Before(Sorted[K - 1].Place, Sorted[K].Place)) ++G;
        Order[K] = Sorted[K].Place;
        Group[static_cast<std::size_t>(Order[K])] = G;
        Is_As_Before = Is_As_Before && Order[K] == static_cast<Long>(K);
    }
    if (!Is_As_Before) Exchange_Turns(Order, Group);
    return Order;
}

/// Moves the rows of Tab so that row k + 1 is the one whose place, from 0, was Order[k].
template <typename T>
void Put_In_Order(Table<T>& Tab, std::vector<Long> Order) {
    const auto Rows = Tab.Rows();
    // Round after round of rows that take each other's places.
    for (std::size_t Start = 0; Start < Order.size(); ++Start) {
        if (Order[Start] == static_cast<Long>(Start)) continue;
        T First = std::move(Rows[Start]);
        std::size_t To = Start;
        while (true) {
            const auto From = static_cast<std::size_t>(Order[To]);
            Order[To] = static_cast<Long>(To);
            if (From == Start) break;
            Rows[To] = std::move(Rows[From]);
            To = From;
        }
        Rows[To] = std::move(First);
    }
}

/// Puts the rows of Tab in the order that the exchange sort leaves, by a strict predicate on
/// two rows and a whole number of a row that never falls where the order rises.
template <typename T, typename Key_Of, typename Before>
void Exchange_Order(Table<T>& Tab, Key_Of Key, Before Comes_Before) {
    const auto Rows = Tab.Rows();
    const auto Row = [&](Long I) -> const T& { return Rows[static_cast<std::size_t>(I)]; };
    Put_In_Order(Tab, Exchange_Places(
                          Tab.Nb(), [&](Long I) -> std::uint32_t { return Key(Row(I)); },
                          [&](Long I, Long J) { return Comes_Before(Row(I), Row(J)); }));
}

/// The same without a whole number.
template <typename T, typename Before>
void Exchange_Order(Table<T>& Tab, Before Comes_Before) {
    Exchange_Order(
        Tab, [](const T&) { return 0U; }, Comes_Before);
}

/// The order of an exchange sort that exchanges equal rows as well: the groups of equals ascend,
/// each turned end to end.
template <typename T, typename Before>
void Exchange_Equals_Order(Table<T>& Tab, Before Comes_Before) {
    const auto Rows = Tab.Rows();
    std::reverse(Rows.begin(), Rows.end());
    std::stable_sort(Rows.begin(), Rows.end(), Comes_Before);
}
