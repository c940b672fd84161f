#include "cad/release_name.h"

#include <gtest/gtest.h>

TEST(ReleaseName, FollowsTheRevisionsFirstCharacters) {
    const std::pair<const wchar_t*, const wchar_t*> cases[] = {{L"9.0.0", L"SolidWorks 2001"},
                                                               {L"99.1", L"SolidWorks 2001"},
                                                               {L"10.0.0", L"SolidWorks 2001Plus"},
                                                               {L"11.2.0", L"SolidWorks 2003"},
                                                               {L"12.0.1", L"SolidWorks 2004"},
                                                               {L"13.0.0", L""},
                                                               {L"1", L""},
                                                               {L" 12.0", L""}};
    for (const auto& [revision, name] : cases) EXPECT_EQ(releaseName(revision), name) << revision;
}
