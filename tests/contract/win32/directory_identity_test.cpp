// How directories are told apart, on file systems as Windows describes them.

#include "platform/win32/files/directory_identity.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "platform/win32/files/win_files.h"

namespace {

/// A file system that answers as it is told.
struct Answers : IdentityCalls {
    std::optional<FILE_ID_INFO> wideAnswer;
    BY_HANDLE_FILE_INFORMATION narrowAnswer{};

    bool wide(HANDLE, FILE_ID_INFO& identity) override {
        if (wideAnswer) identity = *wideAnswer;
        return wideAnswer.has_value();
    }
    bool narrow(HANDLE, BY_HANDLE_FILE_INFORMATION& information) override {
        information = narrowAnswer;
        return true;
    }

    DirectoryId id() {
        DirectoryId result{};
        EXPECT_TRUE(identify(nullptr, result, *this));
        return result;
    }
};

DirectoryId wideId(ULONGLONG volume, BYTE last) {
    Answers answers;
    answers.wideAnswer = FILE_ID_INFO{};
    answers.wideAnswer->VolumeSerialNumber = volume;
    answers.wideAnswer->FileId.Identifier[0] = 1;
    answers.wideAnswer->FileId.Identifier[15] = last;
    return answers.id();
}

DirectoryId narrowId(DWORD volume, DWORD high, DWORD low, std::optional<FILE_ID_INFO> wide = {}) {
    Answers answers;
    answers.wideAnswer = wide;
    answers.narrowAnswer.dwVolumeSerialNumber = volume;
    answers.narrowAnswer.nFileIndexHigh = high;
    answers.narrowAnswer.nFileIndexLow = low;
    return answers.id();
}

}  // namespace

TEST(DirectoryIdentity, TellsApartByAllBitsThatTheFileSystemHas) {
    EXPECT_EQ(wideId(7, 2), wideId(7, 2));
    EXPECT_FALSE(wideId(7, 2) == wideId(7, 3));
    EXPECT_FALSE(wideId(7, 2) == wideId(1ULL << 40, 2));
    EXPECT_EQ(narrowId(7, 1, 2), narrowId(7, 1, 2));
    EXPECT_FALSE(narrowId(7, 1, 2) == narrowId(7, 2, 2));
    EXPECT_FALSE(narrowId(7, 1, 2) == narrowId(8, 1, 2));
}

TEST(DirectoryIdentity, AsksTheOldWayWhereTheNewIdentityIsNoneOrAllBits) {
    for (const BYTE filler : {BYTE{0}, BYTE{0xFF}}) {
        FILE_ID_INFO none{};
        std::ranges::fill(none.FileId.Identifier, filler);
        EXPECT_FALSE(narrowId(7, 1, 2, none) == narrowId(7, 1, 3, none));
    }
}

TEST(FoundName, IsWhatItsAttributesAndTagSay) {
    WIN32_FIND_DATAW found{};
    found.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    found.dwReserved0 = IO_REPARSE_TAG_SYMLINK;
    EXPECT_TRUE(entryOf(found).isLink);
    found.dwReserved0 = 0x9000001A;  // a directory in a cloud
    EXPECT_FALSE(entryOf(found).isLink);
}
