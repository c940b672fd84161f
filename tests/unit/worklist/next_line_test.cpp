#include "worklist/next_line.h"

#include <gtest/gtest.h>

#include "worklist/work_list.h"

namespace {

/// A list of one-character codes.
WorkList listOf(std::wstring_view codes) {
    WorkList list;
    for (const wchar_t code : codes) list.EtatFich[list.DerFich++].code = code;
    --list.DerFich;
    return list;
}

}  // namespace

TEST(NextLine, OnlyLinesToDoCount) {
    const WorkList list = listOf(L"01230xx0");
    EXPECT_EQ(prochaineAFaire(list, -1), 0);
    EXPECT_EQ(prochaineAFaire(list, 0), 4);
    EXPECT_EQ(prochaineAFaire(list, 4), 7);
    EXPECT_EQ(prochaineAFaire(list, 7), 8);
    EXPECT_EQ(precedenteAFaire(list, 7), 7);
    EXPECT_EQ(precedenteAFaire(list, 6), 4);
    EXPECT_EQ(precedenteAFaire(list, 3), 0);
    EXPECT_EQ(precedenteAFaire(list, -1), -1);
    EXPECT_EQ(precedenteAFaire(listOf(L"123"), 2), -1);
}

TEST(NextLine, StaleLinesDoNotCount) {
    WorkList list = listOf(L"1100");
    list.DerFich = 1;
    EXPECT_EQ(prochaineAFaire(list, -1), 2);
}
