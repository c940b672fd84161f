#include "searchfolders/configuration_editing.h"

#include <set>

#include "unit/unit_test.h"

namespace {

void fill(Configuration& configuration, const Texts& entries, int first = 0) {
    for (const std::wstring& entry : entries) configuration[first++] = entry;
}

Texts entriesOf(const Configuration& configuration, int first = 0) {
    Texts entries;
    while (first < firstEmpty(configuration, first)) entries.push_back(configuration[first++]);
    return entries;
}

/// "En Cours", then the given rows, each its name and its directories.
Configurations withRows(const std::vector<Texts>& rows) {
    Configurations configs;
    configs.rows[0][0] = L"En Cours";
    for (const Texts& row : rows) fill(configs.rows[++configs.last], row);
    return configs;
}

}  // namespace

TEST(ConfigurationEditing, AddsADirectoryOnceInEachSpelling) {
    Configuration edited;
    EXPECT_TRUE(addDirectory(edited, 0, L"c:\\a"));
    EXPECT_FALSE(addDirectory(edited, 1, L"c:\\a"));
    EXPECT_TRUE(addDirectory(edited, 1, L"C:\\A"));
    EXPECT_EQ(edited[2], L"C:\\A");
    EXPECT_EQ(raised([&] { addDirectory(edited, kMostDirectories, L"c:\\b"); }), 9);
}

TEST(ConfigurationEditing, RemovesTheSelectedAndWhatFollowsThem) {
    const struct {
        std::set<int> selected;
        Removal removal;
        Texts left;
    } cases[] = {
        {{0, 3}, Removal::Selected, {L"C:\\p\\1", L"c:\\P2", L"c:\\P\\3"}},
        {{0}, Removal::WithFollowers, {L"d:\\", L"c:\\P\\3"}},
        {{1, 4}, Removal::WithFollowers, {L"c:\\P", L"c:\\P2", L"d:\\"}},
    };
    for (const auto& c : cases) {
        Configuration edited;
        fill(edited, {L"c:\\P", L"C:\\p\\1", L"c:\\P2", L"d:\\", L"c:\\P\\3"}, 1);
        const auto selected = [&](int line) { return c.selected.contains(line); };
        EXPECT_EQ(removeDirectories(edited, 5, selected, c.removal), std::ssize(c.left));
        EXPECT_EQ(entriesOf(edited, 1), c.left);
    }
}

TEST(ConfigurationEditing, StoresUnderTheRightName) {
    const struct {
        const wchar_t* before;  // the name when renaming began
        const wchar_t* typed;
        int row;
        const wchar_t* stored;
        int count;
    } cases[] = {
        {L"", L"Neuf ", 3, L"Neuf ", 3}, {L"", L"a", 1, L"a", 2},
        {L"", L"  ", 3, L"Defaut_3", 3}, {L"B", L"C", 2, L"C", 2},
        {L"B", L"", 2, L"Defaut_2", 2},  {L"", L"en cours", 0, L"en cours", 2},
        {L"En Cours", L"D", 0, L"D", 2},
    };
    for (const auto& c : cases) {
        Configurations configs = withRows({{L"A", L"c:\\1", L"c:\\2"}, {L"B", L"c:\\3", L"c:\\4"}});
        configs.renamed = c.before;
        configs.edited[1] = L"d:\\";
        std::wstring name = c.typed;
        storeEdited(configs, name);
        EXPECT_EQ(name, c.stored);
        EXPECT_EQ(entriesOf(configs.rows[c.row]), (Texts{c.stored, L"d:\\"})) << c.typed;
        EXPECT_EQ(configs.last, c.count) << c.typed;
    }
}

TEST(ConfigurationEditing, HasNoRoomForA51st) {
    Configurations configs = withRows(std::vector<Texts>(50, {L"A"}));
    std::wstring name = L"B";
    EXPECT_EQ(raised([&] { storeEdited(configs, name); }), 9);
    configs.selected = 50;
    EXPECT_EQ(raised([&] { destroySelected(configs); }), 9);
}

TEST(ConfigurationEditing, DestroyingKeepsTheTailOfALongerRow) {
    Configurations configs =
        withRows({{L"A", L"1", L"2", L"3", L"4", L"5"}, {L"B", L"x", L"y"}, {L"C", L"z"}});
    configs.selected = 0;
    destroySelected(configs);
    EXPECT_EQ(configs.last, 3);
    configs.selected = 1;
    destroySelected(configs);
    EXPECT_EQ(configs.last, 2);
    EXPECT_EQ(entriesOf(configs.rows[1]), (Texts{L"B", L"x", L"y", L"3", L"4", L"5"}));
    EXPECT_EQ(entriesOf(configs.rows[2]), (Texts{L"C", L"z", L"y"}));
    EXPECT_EQ(configs.rows[3][0], L"");
}
