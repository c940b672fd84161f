#include "pickers/pickers.h"

#include "pickers/paths.h"
#include "unit/unit_test.h"

TEST(Paths, ShowWhereANameLeadsHoweverItIsSpelled) {
    const std::tuple<const wchar_t*, const wchar_t*, const wchar_t*, const wchar_t*> cases[] = {
        {L"c:\\l", L"a.x", L"c:\\l\\a.x", L""},
        {L"\\\\?\\c:\\", L".\\b\\..\\a.x", L"c:\\a.x", L""},
        {L"c:\\l", L"..\\..\\..\\a.x", L"c:\\a.x", L""},
        {L"c:\\l", L"d:a.x", L"d:\\a.x", L""},
        {L"c:\\l", L"D:/p//a.x", L"D:\\p\\a.x", L""},
        {L"\\\\srv\\part\\l", L"\\p\\a.x", L"\\\\srv\\part\\p\\a.x", L"SRV"},
        {L"c:\\l", L"//Srv/part/../a.x", L"\\\\Srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\\\?\\unc\\srv\\part\\a.x", L"\\\\srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\??\\d:\\a.x", L"d:\\a.x", L""},
        {L"c:\\l", L"//./\\\\?/UNC/srv/part/a.x", L"\\\\srv\\part\\a.x", L"SRV"},
        {L"c:\\l", L"\\\\?\\GLOBALROOT\\Device\\Mup\\srv\\a.x",
         L"c:\\l\\GLOBALROOT\\Device\\Mup\\srv\\a.x", L""},
        {L"c:\\l", L"\\\\srv\\a.x", L"", L""},
        {L"c:\\l", L"\\\\srv", L"", L""},
        {L"c:\\l", L"\\\\?\\UNC\\?\\c:\\a.x", L"", L""},
        {L"c:\\l", L"\\\\srv\\..\\a.x", L"", L""},
    };
    for (const auto& [directory, name, path, server] : cases) {
        EXPECT_EQ(resolvedPath(directory, name).value_or(L""), path) << name;
        EXPECT_EQ(serverOf(path), server) << name;
    }
}

TEST(DirectoryListing, KnowsThePathsOfDirectories) {
    using Text = const wchar_t*;
    const std::tuple<Text, Text, Text, Text, bool> cases[] = {
        {L"c:\\", L"c:\\", L"c:\\", L"c:\\x", true},
        {L"c:", L"c:\\", L"c:\\", L"c:\\x", true},
        {L"c:\\a\\", L"c:\\a", L"c:\\", L"c:\\a\\x", false},
        {L"c:\\a\\b c", L"c:\\a\\b c", L"c:\\a", L"c:\\a\\b c\\x", false},
        {L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part\\x", false},
        {L"\\\\srv\\part\\", L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part\\x", false},
        {L"\\\\srv\\part\\a", L"\\\\srv\\part\\a", L"\\\\srv\\part", L"\\\\srv\\part\\a\\x", false},
    };
    for (const auto& [given, reported, parent, child, isRoot] : cases) {
        EXPECT_EQ(reportedPath(given), reported);
        EXPECT_EQ(parentPath(reported), parent) << given;
        EXPECT_EQ(childPath(reported, L"x"), child) << given;
        EXPECT_EQ(isDriveRoot(reported), isRoot) << given;
    }
}
