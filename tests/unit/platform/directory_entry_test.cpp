#include "platform/directory_entry.h"

#include <gtest/gtest.h>

TEST(DirectoryEntry, LeavesOutHiddenFilesAndWhatTheExplorerKeepsToItself) {
    using namespace attribute;
    const std::pair<std::uint32_t, bool> cases[] = {{0, false},
                                                    {kSystem, false},
                                                    {kHidden, true},
                                                    {kHidden | kSystem, true},
                                                    {kDirectory, false},
                                                    {kDirectory | kSystem, false},
                                                    {kDirectory | kHidden, false},
                                                    {kDirectory | kHidden | kSystem, true}};
    for (const auto& [attributes, leftOut] : cases) {
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
        {0x9000601A, false},     // in a cloud
        {0x80000013, false},     // deduplicated
        {0x8000000A, false},     // of a distributed file system
        {0x80000017, false},     // compressed
    };
    for (const auto& [tag, link] : cases) {
        EXPECT_EQ(directoryEntry(L"nom", kDirectory | kReparsePoint, tag).isLink, link) << tag;
        EXPECT_FALSE(directoryEntry(L"nom", kDirectory, tag).isLink)
            << tag << ": no such attribute";
    }
}
