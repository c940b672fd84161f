#include "searchfolders/configurations.h"

#include <set>

#include "unit/unit_test.h"

static void fill(Configuration& configuration, const Texts& entries, int first = 0) {
    for (const std::wstring& entry : entries) configuration[first++] = entry;
}

static Texts entriesOf(const Configuration& configuration, int first = 0) {
    Texts entries;
    while (first < firstEmpty(configuration, first)) entries.push_back(configuration[first++]);
    return entries;
}

/// "En Cours", then the given rows, each its name and its directories.
static Configurations withRows(const std::vector<Texts>& rows) {
    Configurations configs;
    configs.rows[0][0] = L"En Cours";
    for (const Texts& row : rows) fill(configs.rows[++configs.last], row);
    return configs;
}

TEST(ConfigurationEditing, AddsADirectoryOnceInEachSpelling) {
    Configuration edited;
    EXPECT_TRUE(addDirectory(edited, 0, L"c:\\a"));
    EXPECT_FALSE(addDirectory(edited, 1, L"c:\\a"));
    EXPECT_TRUE(addDirectory(edited, 1, L"C:\\A"));
    EXPECT_EQ(edited[2], L"C:\\A");
    EXPECT_EQ(raised([&] { addDirectory(edited, kMostDirectories, L"c:\\b"); }), 9);
}

TEST(ConfigurationEditing, RemovesTheSelectedAndWhatFollowsThem) {
    const std::tuple<std::set<int>, Removal, Texts> cases[] = {
        {{0, 3}, Removal::Selected, {L"C:\\p\\1", L"c:\\P2", L"c:\\P\\3"}},
        {{0}, Removal::WithFollowers, {L"d:\\", L"c:\\P\\3"}},
        {{1, 4}, Removal::WithFollowers, {L"c:\\P", L"c:\\P2", L"d:\\"}},
    };
    for (const auto& [lines, removal, left] : cases) {
        Configuration edited;
        fill(edited, {L"c:\\P", L"C:\\p\\1", L"c:\\P2", L"d:\\", L"c:\\P\\3"}, 1);
        const auto selected = [&chosen = lines](int line) { return chosen.contains(line); };
        EXPECT_EQ(removeDirectories(edited, 5, selected, removal), std::ssize(left));
        EXPECT_EQ(entriesOf(edited, 1), left);
    }
}

TEST(ConfigurationEditing, StoresUnderTheRightName) {
    // The name when renaming began, the one typed, the row and name it is stored by.
    const std::tuple<const wchar_t*, const wchar_t*, int, const wchar_t*, int> cases[] = {
        {L"", L"Neuf ", 3, L"Neuf ", 3}, {L"", L"a", 1, L"a", 2},
        {L"", L"  ", 3, L"Defaut_3", 3}, {L"B", L"C", 2, L"C", 2},
        {L"B", L"", 2, L"Defaut_2", 2},  {L"", L"en cours", 0, L"en cours", 2},
        {L"En Cours", L"D", 0, L"D", 2},
    };
    for (const auto& [before, typed, row, stored, count] : cases) {
        Configurations configs = withRows({{L"A", L"c:\\1", L"c:\\2"}, {L"B", L"c:\\3", L"c:\\4"}});
        configs.renamed = before;
        configs.edited[1] = L"d:\\";
        std::wstring name = typed;
        storeEdited(configs, name);
        EXPECT_EQ(name, stored);
        EXPECT_EQ(entriesOf(configs.rows[row]), (Texts{stored, L"d:\\"})) << typed;
        EXPECT_EQ(configs.last, count) << typed;
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

TEST(ConfigurationFile, StoresEveryLineByTheRules) {
    // How many configurations there are, and the first entries of one of the rows.
    const std::tuple<const wchar_t*, int, int, Texts> cases[] = {
        {L"  c:\\avant\r\nConfiguration: A\r\n", 1, 0, {L"", L"c:\\avant", L"", L""}},
        {L"configuration: b\nc:\\c\n", 1, 1, {L"b", L"c:\\c", L"", L""}},
        {L"ABC CONFIGURATION: d\r\n", 1, 1, {L"ION: d", L"", L"", L""}},
        {L"Configuration:A\r\n' note\r\n\r\n c:\\d\r\n", 1, 1, {L"A", L"' note", L"", L"c:\\d"}},
        {L"Configuration:\r\nc:\\e\r\nConfiguration:f\r\n", 2, 1, {L"", L"c:\\e", L"", L""}},
    };
    for (const auto& [text, count, row, expected] : cases) {
        Configurations configs;
        for (int i = 0; i < 2; ++i) parseConfigurationFile(text, configs, {});
        EXPECT_EQ(configs.last, count) << text;
        Texts entries;
        for (int j = 0; j < 4; ++j) entries.push_back(configs.rows[row][j]);
        EXPECT_EQ(entries, expected) << text;
    }
}

TEST(ConfigurationFile, HoldsAsMuchAsTheTableAndNamesTheLineThatIsTooMuch) {
    const auto errorFor = [](int configurations, int directories) {
        std::wstring text;
        for (int i = 0; i < configurations; ++i) text += L"Configuration:  c\r\n";
        for (int i = 0; i < directories; ++i) text += L"   c:\\d\r\n";
        Configurations configs;
        return raisedError([&] { parseConfigurationFile(text, configs, L"c:\\x.cfg"); });
    };
    EXPECT_EQ(errorFor(50, 200).number, 0);
    EXPECT_TRUE(has(errorFor(51, 1).text, L"\r\nConfigurations : 50 au plus."));
    const RuntimeError error = errorFor(1, 201);
    EXPECT_EQ(error.number, 9);
    EXPECT_TRUE(error.text.ends_with(
        L"\r\nRépertoires d'une configuration : 200 au plus.\r\nLigne 202 de c:\\x.cfg"))
        << error.text;
}

TEST(ConfigurationFile, IsWrittenBackWithItsHolesClosed) {
    const std::wstring clean =
        L"Configuration:  Projet A\r\n   c:\\a\r\n   \\\\serveur\\b c\r\nConfiguration:  Été\r\n";
    const std::pair<std::wstring, std::wstring> cases[] = {
        {clean, clean},
        {L"c:\\perdu\nconfiguration:x\n c:\\a \n\nc:\\b",
         L"Configuration:  x\r\n   c:\\a\r\n   c:\\b\r\n"},
        {L"Configuration:\r\n   c:\\sans nom\r\nConfiguration:  y\r\n", L"Configuration:  y\r\n"},
    };
    for (const auto& [read, written] : cases) {
        Configurations configs;
        parseConfigurationFile(read, configs, {});
        EXPECT_EQ(formatConfigurationFile(configs), written);
    }
}

TEST(SearchFolders, AreSplitAndJoinedAtSemicolonsTwoHundredAtMost) {
    const std::tuple<const wchar_t*, int, const wchar_t*> cases[] = {
        {L"", 0, L""},        {L"A", 1, L"A"},    {L"A;B;C", 3, L"A;B;C"},
        {L"A;B;", 2, L"A;B"}, {L"A;;C", 1, L"A"}, {L";B", 0, L";B"},
    };
    for (const auto& [folders, entries, rejoined] : cases) {
        Configuration row;
        splitFolders(folders, row);
        EXPECT_EQ(directoryCount(row), entries) << folders;
        EXPECT_EQ(joinFolders(row), rejoined) << folders;
    }
    std::wstring folders = L"A";
    for (int i = 1; i < 199; ++i) folders += L";A";
    Configuration row;
    splitFolders(folders, row);
    EXPECT_EQ(joinFolders(row), folders);
    splitFolders(folders + L";A", row);
    EXPECT_EQ(raised([&] { joinFolders(row); }), 9) << "no empty entry ends a full row";
    EXPECT_EQ(raised([&] { splitFolders(folders + L";A;", row); }), 9);
}
