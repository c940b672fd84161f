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

Answers wideOnes(ULONGLONG volume, BYTE first, BYTE last) {
    Answers answers;
    answers.wideAnswer = FILE_ID_INFO{};
    answers.wideAnswer->VolumeSerialNumber = volume;
    answers.wideAnswer->FileId.Identifier[0] = first;
    answers.wideAnswer->FileId.Identifier[15] = last;
    answers.narrowAnswer.nFileIndexLow = first;
    return answers;
}

Answers narrowOnes(DWORD volume, DWORD high, DWORD low) {
    Answers answers;
    answers.narrowAnswer.dwVolumeSerialNumber = volume;
    answers.narrowAnswer.nFileIndexHigh = high;
    answers.narrowAnswer.nFileIndexLow = low;
    return answers;
}

}  // namespace

TEST(DirectoryIdentity, TellsApartByAllBitsThatTheFileSystemHas) {
    EXPECT_EQ(wideOnes(7, 1, 2).id(), wideOnes(7, 1, 2).id());
    EXPECT_FALSE(wideOnes(7, 1, 2).id() == wideOnes(7, 1, 3).id());
    EXPECT_FALSE(wideOnes(7, 1, 2).id() == wideOnes(1ULL << 40, 1, 2).id());
    EXPECT_EQ(narrowOnes(7, 1, 2).id(), narrowOnes(7, 1, 2).id());
    EXPECT_FALSE(narrowOnes(7, 1, 2).id() == narrowOnes(7, 2, 2).id());
    EXPECT_FALSE(narrowOnes(7, 1, 2).id() == narrowOnes(8, 1, 2).id());
}

TEST(DirectoryIdentity, AsksTheOldWayWhereTheNewIdentityIsNoneOrAllBits) {
    for (const BYTE filler : {BYTE{0}, BYTE{0xFF}}) {
        Answers one = narrowOnes(7, 1, 2);
        Answers other = narrowOnes(7, 1, 3);
        for (Answers* answers : {&one, &other}) {
            answers->wideAnswer = FILE_ID_INFO{};
            std::ranges::fill(answers->wideAnswer->FileId.Identifier, filler);
        }
        EXPECT_FALSE(one.id() == other.id());
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
