// tests/core/test_table.cpp - count, capacity and growth of a table.
#include "core/table.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

TEST(Table, GrowsByItsStepAndKeepsItsRows) {
    Table<std::string> Tab{2, 3};
    for (int I = 1; I <= 6; ++I) {
        const Long Max_Before = I <= 2 ? 2 : I == 3 ? 2 : 5;
        EXPECT_EQ(Tab.Max(), Max_Before) << I;
        EXPECT_EQ(Tab.Append("row " + std::to_string(I)), I);
    }
    EXPECT_EQ(Tab.Max(), 8);
    for (int I = 1; I <= 6; ++I) EXPECT_EQ(Tab[I], "row " + std::to_string(I));
}

TEST(Table, ARowOfItsOwnCanBeAdded) {
    Table<std::string> Tab{1, 1};
    Tab.Append("a text too long for the record itself");
    for (int I = 0; I < 100; ++I) Tab.Append(Tab[1]);
    EXPECT_EQ(Tab[101], Tab[1]);
}

TEST(Table, ManyRowsAtOnceCountAsOneByOne) {
    Table<int> Many{2, 3}, One_By_One{2, 3};
    for (const int Count : {1, 1, 0, 4, 90}) {
        const auto Rows = Many.Append_Rows(static_cast<std::size_t>(Count));
        ASSERT_EQ(Rows.size(), static_cast<std::size_t>(Count));
        for (int& Row : Rows) {
            EXPECT_EQ(Row, 0);
            Row = One_By_One.Append(static_cast<int>(One_By_One.Nb()));
        }
        EXPECT_EQ(Many.Nb(), One_By_One.Nb());
        EXPECT_EQ(Many.Max(), One_By_One.Max());
    }
    EXPECT_EQ(Many[1], 1);
    EXPECT_EQ(Many[96], 96);
    Many.Dimension(std::numeric_limits<Long>::max() - 1);
    Many.Append_Rows(1);
    EXPECT_DEATH(Many.Append_Rows(std::numeric_limits<Long>::max()), "at most 2147483647 rows");
}

TEST(Table, RemoveMovesTheFollowingRowsDown) {
    Table<int> Tab{5, 5};
    for (const int X : {10, 20, 30}) Tab.Append(X);
    Tab.Remove(1);
    EXPECT_EQ(Tab.Nb(), 2);
    EXPECT_EQ(Tab[1], 20);
    EXPECT_EQ(Tab[2], 30);
    Tab.Remove(2);
    Tab.Remove(1);
    EXPECT_EQ(Tab.Nb(), 0);
    EXPECT_EQ(Tab.Max(), 5);
    EXPECT_DEATH(Tab.Remove(1), "a row of the table");
}

TEST(Table, TruncateDimensionAndReset) {
    Table<std::unique_ptr<int>> Tab{4, 2};
    for (int I = 0; I < 7; ++I) Tab.Append(std::make_unique<int>(I));
    Tab.Truncate(3);
    EXPECT_EQ(Tab.Nb(), 3);
    EXPECT_EQ(*Tab[3], 2);
    Tab.Dimension(std::numeric_limits<Long>::max());
    EXPECT_EQ(Tab.Nb(), 0);
    EXPECT_EQ(Tab.Max(), std::numeric_limits<Long>::max()) << "and no memory is taken";
    Tab.Append(nullptr);
    const auto* Row = &Tab[1];
    Tab.Append(std::make_unique<int>(9));
    EXPECT_EQ(Row, &Tab[1]) << "the memory of the rows dropped serves again";
    Tab.Reset();
    EXPECT_EQ(Tab.Nb(), 0);
    EXPECT_EQ(Tab.Rows().data(), nullptr) << "and goes back";
    EXPECT_EQ(Tab.Max(), 4);
    EXPECT_DEATH(Tab.Truncate(1), "at most its rows");
}

TEST(Table, AnIndexIsChecked) {
    if (!Checks_Table_Index) GTEST_SKIP() << "indexes are checked in debug builds";
    Table<int> Tab{1, 1};
    Tab.Append(1);
    EXPECT_DEATH(Tab[0], "a row of the table");
    EXPECT_DEATH(Tab[2], "a row of the table");
}
