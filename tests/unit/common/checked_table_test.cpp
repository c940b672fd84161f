#include "common/checked_table.h"

#include "unit/unit_test.h"

constexpr wchar_t kLimit[] = L"Essais : 1000 au plus.";

TEST(CheckedTable, HasAllItsEntriesFromTheBeginningAndNoMore) {
    CheckedTable<std::string, 1000, kLimit> table;
    const auto& view = table;
    EXPECT_EQ(view[999], "");
    std::string& last = table[999];
    last = "z";
    for (int i = 0; i < 999; ++i) table[i] = std::to_string(i);
    EXPECT_EQ(&last, &table[999]) << "an entry stays where it is";
    table.clear(1, 999);
    EXPECT_EQ(view[0] + view[1] + view[998] + view[999], "0z");
    EXPECT_EQ(raised([&] { table[1000] = ""; }), 9);
    EXPECT_EQ(raised([&] { (void)view[1000]; }), 9);
    EXPECT_EQ(raised([&] { (void)view[-1]; }), 9);
}
