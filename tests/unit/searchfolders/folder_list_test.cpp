#include "searchfolders/folder_list.h"

#include <gtest/gtest.h>

#include "common/runtime_error.h"

namespace {

TEST(SearchFolders, AreSplitAndJoinedAtSemicolons) {
    struct Case {
        const wchar_t* folders;
        int entries;
        const wchar_t* rejoined;
    };
    const Case cases[] = {
        {L"", 0, L""},        {L"A", 1, L"A"},    {L"A;B;C", 3, L"A;B;C"},
        {L"A;B;", 2, L"A;B"}, {L"A;;C", 1, L"A"}, {L";B", 0, L";B"},
    };
    for (const Case& one : cases) {
        Configuration row;
        splitFolders(one.folders, row);
        EXPECT_EQ(directoryCount(row), one.entries) << one.folders;
        EXPECT_EQ(joinFolders(row), one.rejoined) << one.folders;
    }
}

TEST(SearchFolders, FillTwoHundredEntriesAtMost) {
    std::wstring folders = L"A";
    for (int i = 1; i < 199; ++i) folders += L";A";
    Configuration row;
    splitFolders(folders, row);
    EXPECT_EQ(joinFolders(row), folders);
    splitFolders(folders + L";A", row);
    EXPECT_THROW(joinFolders(row), RuntimeError) << "no empty entry ends a full row";
    EXPECT_THROW(splitFolders(folders + L";A;", row), RuntimeError);
}

}  // namespace
