#include "searchfolders/folder_list.h"

#include "unit/unit_test.h"

TEST(SearchFolders, AreSplitAndJoinedAtSemicolons) {
    const struct {
        const wchar_t* folders;
        int entries;
        const wchar_t* rejoined;
    } cases[] = {
        {L"", 0, L""},        {L"A", 1, L"A"},    {L"A;B;C", 3, L"A;B;C"},
        {L"A;B;", 2, L"A;B"}, {L"A;;C", 1, L"A"}, {L";B", 0, L";B"},
    };
    for (const auto& c : cases) {
        Configuration row;
        splitFolders(c.folders, row);
        EXPECT_EQ(directoryCount(row), c.entries) << c.folders;
        EXPECT_EQ(joinFolders(row), c.rejoined) << c.folders;
    }
}

TEST(SearchFolders, FillTwoHundredEntriesAtMost) {
    std::wstring folders = L"A";
    for (int i = 1; i < 199; ++i) folders += L";A";
    Configuration row;
    splitFolders(folders, row);
    EXPECT_EQ(joinFolders(row), folders);
    splitFolders(folders + L";A", row);
    EXPECT_EQ(raised([&] { joinFolders(row); }), 9) << "no empty entry ends a full row";
    EXPECT_EQ(raised([&] { splitFolders(folders + L";A;", row); }), 9);
}
