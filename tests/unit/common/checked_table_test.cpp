#include "common/checked_table.h"

#include <gtest/gtest.h>

#include "unit/raised.h"

TEST(CheckedTable, RaisesSubscriptOutOfRangePastItsEnds) {
    CheckedTable<int, 3> table;
    table[2] = 7;
    const auto& view = table;
    EXPECT_EQ(view[2], 7);
    EXPECT_EQ(raised([&] { table[3] = 1; }), 9);
    EXPECT_EQ(raised([&] { (void)view[3]; }), 9);
    EXPECT_EQ(raised([&] { (void)view[-1]; }), 9);
}
