#include "cad/release_name.h"

#include <gtest/gtest.h>

TEST(ReleaseName, FollowsTheRevisionsFirstCharacters) {
    const struct {
        const wchar_t* revision;
        const wchar_t* name;
    } cases[] = {{L"9.0.0", L"SolidWorks 2001"},
                 {L"99.1", L"SolidWorks 2001"},
                 {L"10.0.0", L"SolidWorks 2001Plus"},
                 {L"11.2.0", L"SolidWorks 2003"},
                 {L"12.0.1", L"SolidWorks 2004"},
                 {L"13.0.0", L""},
                 {L"1", L""},
                 {L" 12.0", L""},
                 {L"", L""}};
    for (const auto& c : cases) EXPECT_EQ(releaseName(c.revision), c.name) << c.revision;
}
