#include <gtest/gtest.h>

#include "ports/files.h"
#include "rules/windows_files.h"

TEST(DirectoryEntry, LeavesOutHiddenFilesAndWhatTheExplorerKeepsToItself) {
    using namespace attribute;
    constexpr std::uint32_t kBoth = kHidden | kSystem;
    for (const auto& [attributes, leftOut] : {std::pair(kSystem, false),
                                              {kHidden, true},
                                              {kBoth, true},
                                              {kDirectory | kSystem, false},
                                              {kDirectory | kHidden, false},
                                              {kDirectory | kBoth, true}}) {
        const DirectoryEntry entry = directoryEntry(L"nom", attributes, 0);
        EXPECT_EQ(entry.isLeftOut, leftOut) << attributes;
        EXPECT_EQ(entry.isDirectory, (attributes & kDirectory) != 0) << attributes;
    }
}

// Tags as Windows gives them to directories.
TEST(DirectoryEntry, IsALinkWhenItsTagStandsForAnotherName) {
    using namespace attribute;
    const std::pair<std::uint32_t, bool> cases[] = {
        {kMountPointTag, true},  // junction, mounted folder
        {0xA000000C, true},      // symbolic link
        {0x9000001A, false},     // in a cloud
        {0x80000013, false},     // deduplicated
    };
    for (const auto& [tag, link] : cases) {
        EXPECT_EQ(directoryEntry(L"nom", kDirectory | kReparsePoint, tag).isLink, link) << tag;
        EXPECT_FALSE(directoryEntry(L"nom", kDirectory, tag).isLink)
            << tag << ": no such attribute";
    }
}
