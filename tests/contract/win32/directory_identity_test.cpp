// How directories are told apart, on file systems as Windows describes them.

#include <algorithm>
#include <gtest/gtest.h>
#include <optional>

#include "win32/files/win_files.h"

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
};

FILE_ID_INFO wide(ULONGLONG volume, BYTE first, BYTE last) {
    FILE_ID_INFO id{.VolumeSerialNumber = volume, .FileId = {}};
    id.FileId.Identifier[0] = first;
    id.FileId.Identifier[15] = last;
    return id;
}

DirectoryId idFrom(std::optional<FILE_ID_INFO> wide, DWORD volume = 0, DWORD high = 0,
                   DWORD low = 0) {
    Answers answers;
    answers.wideAnswer = wide;
    answers.narrowAnswer.dwVolumeSerialNumber = volume;
    answers.narrowAnswer.nFileIndexHigh = high;
    answers.narrowAnswer.nFileIndexLow = low;
    DirectoryId id{};
    EXPECT_TRUE(identify(nullptr, id, answers));
    return id;
}

}  // namespace

TEST(DirectoryIdentity, TellsApartByAllBitsThatTheFileSystemHas) {
    const DirectoryId one = idFrom(wide(7, 1, 2));
    EXPECT_EQ(one, idFrom(wide(7, 1, 2)));
    EXPECT_FALSE(one == idFrom(wide(7, 1, 3)) || one == idFrom(wide(1ULL << 40, 1, 2)));
    const DirectoryId old = idFrom({}, 7, 1, 2);
    EXPECT_EQ(old, idFrom({}, 7, 1, 2));
    EXPECT_FALSE(old == idFrom({}, 7, 2, 2) || old == idFrom({}, 8, 1, 2));
}

TEST(DirectoryIdentity, AsksTheOldWayWhereTheNewIdentityIsNoneOrAllBits) {
    for (const BYTE filler : {BYTE{0}, BYTE{0xFF}}) {
        FILE_ID_INFO none{};
        std::ranges::fill(none.FileId.Identifier, filler);
        EXPECT_FALSE(idFrom(none, 7, 1, 2) == idFrom(none, 7, 1, 3));
    }
}

TEST(FoundName, IsWhatItsAttributesAndTagSay) {
    WIN32_FIND_DATAW found{};
    found.dwFileAttributes = FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_REPARSE_POINT;
    found.dwReserved0 = IO_REPARSE_TAG_SYMLINK;
    EXPECT_TRUE(entryOf(found).isLink);
}
