// tests/core/test_table.cpp - count, capacity and growth of a table.
#include "core/table.h"

#include <gtest/gtest.h>

#include <memory>

TEST(Table, GrowsByItsStepAndKeepsItsRows) {
    Table<int> One_By_One{2, 3}, Many{2, 3};
    const Long Capacity[] = {2, 2, 2, 5, 5, 5, 8};
    for (int I = 1; I <= 97; ++I) {
        EXPECT_EQ(One_By_One.Append(I), I);
        EXPECT_TRUE(I > 6 || One_By_One.Max() == Capacity[I]) << I;
    }
    for (const std::size_t Count : {1U, 1U, 0U, 4U, 91U})
        for (int& Row : Many.Append_Rows(Count)) {
            EXPECT_EQ(Row, 0);
            Row = static_cast<int>(&Row - Many.Rows().data()) + 1;
        }
    EXPECT_TRUE(std::ranges::equal(Many.Rows(), One_By_One.Rows()));
    EXPECT_EQ(Many.Max(), One_By_One.Max());
    Many.Remove(2);
    EXPECT_EQ(Many.Nb(), 96);
    EXPECT_EQ(Many[2], 3);
    EXPECT_EQ(Many[96], 97);
    EXPECT_DEATH(Many.Remove(97), "a row of the table");
    Many.Dimension(std::numeric_limits<Long>::max() - 1);
    Many.Append_Rows(1);
    EXPECT_DEATH(Many.Append_Rows(std::numeric_limits<Long>::max()), "at most 2147483647 rows");
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
    Tab.Reset();
    EXPECT_EQ(Tab.Rows().data(), nullptr) << "memory goes back";
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
