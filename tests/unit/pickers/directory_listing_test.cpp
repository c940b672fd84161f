#include "pickers/directory_listing.h"

#include <gtest/gtest.h>

#include "fakes/fake_files.h"

TEST(DirectoryListing, SortsNamesWithoutRegardToCase) {
    std::vector<std::wstring> names = {L"b", L"a_b", L"étoile", L"B", L"Étau", L"aB", L"a1"};
    sortByName(names);
    EXPECT_EQ(names,
              (std::vector<std::wstring>{L"a1", L"aB", L"a_b", L"B", L"b", L"Étau", L"étoile"}));
}

TEST(DirectoryListing, ListsSubdirectoriesWithoutHiddenOnes) {
    FakeFiles files;
    files.directories = {L"c:\\p\\b", L"c:\\p\\Cache", L"c:\\p\\A"};
    files.hidden = {L"c:\\p\\Cache"};
    files.links[L"c:\\p\\lien"] = L"c:\\p";
    files.add(L"c:\\p\\fichier");
    const auto found = listSubdirectories(files, L"c:\\p");
    ASSERT_EQ(found.size(), 3U);
    EXPECT_EQ(found[0].name, L"A");
    EXPECT_EQ(found[1].name, L"b");
    EXPECT_EQ(found[2].name, L"lien");
    EXPECT_TRUE(found[2].isLink);
    EXPECT_FALSE(found[0].isLink);
}

TEST(DirectoryListing, KnowsThePathsOfDirectories) {
    const struct {
        const wchar_t* given;
        const wchar_t* reported;
        const wchar_t* parent;
        const wchar_t* child;
        bool isRoot;
    } cases[] = {
        {L"c:\\", L"c:\\", L"c:\\", L"c:\\x", true},
        {L"c:", L"c:\\", L"c:\\", L"c:\\x", true},
        {L"c:\\a\\", L"c:\\a", L"c:\\", L"c:\\a\\x", false},
        {L"c:\\a\\b c", L"c:\\a\\b c", L"c:\\a", L"c:\\a\\b c\\x", false},
        {L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part\\x", false},
        {L"\\\\srv\\part\\", L"\\\\srv\\part", L"\\\\srv\\part", L"\\\\srv\\part\\x", false},
        {L"\\\\srv\\part\\a", L"\\\\srv\\part\\a", L"\\\\srv\\part", L"\\\\srv\\part\\a\\x", false},
    };
    for (const auto& c : cases) {
        const std::wstring reported = reportedPath(c.given);
        EXPECT_EQ(reported, c.reported) << c.given;
        EXPECT_EQ(parentPath(reported), c.parent) << c.given;
        EXPECT_EQ(childPath(reported, L"x"), c.child) << c.given;
        EXPECT_EQ(isDriveRoot(reported), c.isRoot) << c.given;
    }
}
