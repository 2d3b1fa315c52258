// test_exchange_order.cpp - the fast order against the loops that it stands for.
#include <gtest/gtest.h>

#include <utility>
#include <vector>

#include "geometry/exchange_order.h"
#include "reference/shapes.h"

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

void Exchange_Sort(std::vector<Entry>& List) {
    for (std::size_t I = 0; I < List.size(); ++I)
        for (std::size_t J = I + 1; J < List.size(); ++J)
            if (Comes_Before(List[J], List[I])) std::swap(List[I], List[J]);
}

void Expect_Same_Order(const std::vector<Entry>& List) {
    Table<Entry> Tab{1, 1};
    for (const Entry& E : List) Tab.Append(E);
    Exchange_Order(Tab, Comes_Before);
    std::vector<Entry> Plain = List;
    Exchange_Sort(Plain);
    ASSERT_EQ(std::vector<Entry>(Tab.Rows().begin(), Tab.Rows().end()), Plain);
}

TEST(Exchange_Order, EqualKeysStandWhereTheLoopsLeaveThem) {
    shapes::Random R(1);
    for (int Round = 0; Round < 3000; ++Round) {
        std::vector<Entry> List;
        const Long Keys = R.Whole(1, 9), Minors = R.Whole(1, 3);
        for (Long I = R.Whole(0, 40); I > 0; --I)
            List.push_back({R.Whole(1, Keys), R.Whole(1, Minors), I});
        Expect_Same_Order(List);
    }
}

TEST(Exchange_Order, GroupsOfHundreds) {
    shapes::Random R(2);
    for (const Long Keys : {2, 3, 7, 300}) {
        std::vector<Entry> List;
        for (Long I = 0; I < 1500; ++I) List.push_back({R.Whole(1, Keys), 0, I});
        Expect_Same_Order(List);
    }
}

TEST(Exchange_Order, ACoarseKeyChangesNothing) {
    shapes::Random R(3);
    for (const Long Nb : {50, 900, 5000}) {
        std::vector<Entry> List;
        for (Long I = 0; I < Nb; ++I)
            List.push_back({R.Whole(0, 2'000'000'000 / Nb) * Nb, R.Whole(1, 2), I});
        for (Long I = Nb / 2; I > 0; --I) List[I].Key = List[I / 2].Key;
        Table<Entry> Tab{1, 1};
        for (const Entry& E : List) Tab.Append(E);
        Exchange_Order(
            Tab, [](const Entry& E) { return static_cast<std::uint32_t>(E.Key / 16); },
            Comes_Before);
        Exchange_Sort(List);
        EXPECT_EQ(std::vector<Entry>(Tab.Rows().begin(), Tab.Rows().end()), List) << Nb;
    }
}

TEST(Exchange_Order, EqualsExchangedAsWell) {
    shapes::Random R(3);
    for (int Round = 0; Round < 1000; ++Round) {
        std::vector<Entry> Plain;
        Table<Entry> Tab{1, 1};
        const Long Keys = R.Whole(1, 9);
        for (Long I = R.Whole(0, 40); I > 0; --I) {
            Plain.push_back({R.Whole(1, Keys), 0, I});
            Tab.Append(Plain.back());
        }
        for (std::size_t I = 0; I < Plain.size(); ++I)
            for (std::size_t J = I + 1; J < Plain.size(); ++J)
                if (!Comes_Before(Plain[I], Plain[J])) std::swap(Plain[I], Plain[J]);
        Exchange_Equals_Order(Tab, Comes_Before);
        ASSERT_EQ(std::vector<Entry>(Tab.Rows().begin(), Tab.Rows().end()), Plain);
    }
}

TEST(Exchange_Order, AlreadyInOrderNothingMoves) {
    std::vector<Entry> List;
    for (Long I = 0; I < 100; ++I) List.push_back({I / 10, 0, I});
    Table<Entry> Tab{1, 1};
    for (const Entry& E : List) Tab.Append(E);
    Exchange_Order(Tab, Comes_Before);
    EXPECT_EQ(std::vector<Entry>(Tab.Rows().begin(), Tab.Rows().end()), List);
}

}  // namespace
