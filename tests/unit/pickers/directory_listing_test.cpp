#include "pickers/directory_listing.h"

#include <gtest/gtest.h>

TEST(DirectoryListing, KnowsThePathsOfDirectories) {
    const struct {
        const wchar_t *given, *reported, *parent, *child;
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
