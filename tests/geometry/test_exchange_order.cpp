// test_exchange_order.cpp - the fast order against the loops that it stands for.
#include <gtest/gtest.h>

#include <vector>

#include "geometry/exchange_order.h"
#include "reference/plain.h"
#include "shapes.h"

namespace {

struct Entry {
    Long Key;
    Long Minor;
    Long Place;  // in the first order
    bool operator==(const Entry&) const = default;
};

// Ascending by Key, descending by Minor.
bool Comes_Before(const Entry& A, const Entry& B) {
    return A.Key != B.Key ? A.Key < B.Key : A.Minor > B.Minor;
}

std::vector<Entry> Rows_Of(const Table<Entry>& Tab) {
    return {Tab.Rows().begin(), Tab.Rows().end()};
}

// Lists of Nb entries with few keys, and one with keys all but in order.
TEST(Exchange_Order, StandsWhereTheLoopsLeaveIt) {
    shapes::Random R(1);
    for (int Round = 0; Round < 2000; ++Round) {
        const Long Nb = Round % 500 == 0 ? 1500 : R.Whole(0, 40);
        const Long Keys = R.Whole(1, Round % 7 == 0 ? 300 : 9), Minors = R.Whole(1, 3);
        std::vector<Entry> Plain, Equals;
        Table<Entry> Tab{1, 1}, Tab_Equals{1, 1}, Tab_Coarse{1, 1};
        for (Long I = 0; I < Nb; ++I) {
            Plain.push_back(
                {Round % 3 == 0 ? I / 10 : R.Whole(1, Keys) * 40, R.Whole(1, Minors), I});
            for (Table<Entry>* T : {&Tab, &Tab_Equals, &Tab_Coarse}) T->Append(Plain.back());
        }
        Equals = Plain;
        reference::Exchange_Sort(Plain, Comes_Before);
        reference::Exchange_Sort(
            Equals, [](const Entry& B, const Entry& A) { return !Comes_Before(A, B); });
        Exchange_Order(Tab, Comes_Before);
        ASSERT_EQ(Rows_Of(Tab), Plain);
        Exchange_Order(
            Tab_Coarse, [](const Entry& E) { return static_cast<std::uint32_t>(E.Key / 16); },
            Comes_Before);
        ASSERT_EQ(Rows_Of(Tab_Coarse), Plain) << "a coarse key changes nothing";
        Exchange_Equals_Order(Tab_Equals, Comes_Before);
        ASSERT_EQ(Rows_Of(Tab_Equals), Equals) << "equals exchanged as well";
    }
}

}  // namespace
