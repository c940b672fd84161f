#include "platform/directory_entry.h"

#include <gtest/gtest.h>

TEST(DirectoryEntry, LeavesOutHiddenFilesAndWhatTheExplorerKeepsToItself) {
    const struct {
        std::uint32_t attributes;
        bool isLeftOut;
    } cases[] = {
        {0, false},
        {attribute::kSystem, false},
        {attribute::kHidden, true},
        {attribute::kHidden | attribute::kSystem, true},
        {attribute::kDirectory, false},
        {attribute::kDirectory | attribute::kSystem, false},
        {attribute::kDirectory | attribute::kHidden, false},
        {attribute::kDirectory | attribute::kHidden | attribute::kSystem, true},
    };
    for (const auto& c : cases) {
        const DirectoryEntry entry = directoryEntry(L"nom", c.attributes, 0);
        EXPECT_EQ(entry.isLeftOut, c.isLeftOut) << c.attributes;
        EXPECT_EQ(entry.isDirectory, (c.attributes & attribute::kDirectory) != 0) << c.attributes;
    }
}

// Tags as Windows gives them to directories.
TEST(DirectoryEntry, IsALinkWhenItsTagStandsForAnotherName) {
    const struct {
        std::uint32_t tag;
        bool isLink;
    } cases[] = {
        {kMountPointTag, true},  // junction, mounted folder
        {0xA000000C, true},      // symbolic link
        {0x9000001A, false},     // in a cloud
        {0x9000601A, false},     // in a cloud
        {0x80000013, false},     // deduplicated
        {0x8000000A, false},     // of a distributed file system
        {0x80000017, false},     // compressed
    };
    for (const auto& c : cases) {
        constexpr auto kReparse = attribute::kDirectory | attribute::kReparsePoint;
        EXPECT_EQ(directoryEntry(L"nom", kReparse, c.tag).isLink, c.isLink) << c.tag;
        // Without the attribute the tag says nothing.
        EXPECT_FALSE(directoryEntry(L"nom", attribute::kDirectory, c.tag).isLink) << c.tag;
    }
}
