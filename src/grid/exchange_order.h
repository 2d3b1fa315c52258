// grid/exchange_order.h - the order that an exchange sort leaves, in n log n.
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
#include <numeric>
#include <vector>

#include "core/table.h"

/// Turns a stable order into the one of the exchange sort. Order holds the entries' first
/// places, counted from 0, in stable order; Group[i] is the number of the group of equals that
/// entry i belongs to, ascending from 0.
void Exchange_Turns(std::vector<Long>& Order, const std::vector<Long>& Group);

/// The first places, from 0, of N entries in the order that the exchange sort leaves.
/// Comes_Before(i, j) tells of two first places whether i strictly sorts before j.
template <typename Before>
std::vector<Long> Exchange_Places(Long N, Before Comes_Before) {
    std::vector<Long> Order(static_cast<std::size_t>(N));
    std::iota(Order.begin(), Order.end(), 0);
    if (std::is_sorted(Order.begin(), Order.end(), Comes_Before)) return Order;
    std::stable_sort(Order.begin(), Order.end(), Comes_Before);
    std::vector<Long> Group(Order.size());
    Long G = 0;
    for (std::size_t K = 1; K < Order.size(); ++K) {
        if (Comes_Before(Order[K - 1], Order[K])) ++G;
        Group[static_cast<std::size_t>(Order[K])] = G;
    }
    Exchange_Turns(Order, Group);
    return Order;
}

/// Puts the rows of Tab in the order that the exchange sort leaves, by a strict predicate on
/// two rows.
template <typename T, typename Before>
void Exchange_Order(Table<T>& Tab, Before Comes_Before) {
    const auto Rows = Tab.Rows();
    const auto Order = Exchange_Places(Tab.Nb(), [&](Long I, Long J) {
        return Comes_Before(Rows[static_cast<std::size_t>(I)], Rows[static_cast<std::size_t>(J)]);
    });
    std::vector<T> Sorted;
    Sorted.reserve(Rows.size());
    for (const Long I : Order) Sorted.push_back(std::move(Rows[static_cast<std::size_t>(I)]));
    std::move(Sorted.begin(), Sorted.end(), Rows.begin());
}
