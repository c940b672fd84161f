// How a file is replaced that another program has open, what is told of a directory's entries, what
// Windows is told of a path, and what its error numbers become.

#include "rules/windows_files.h"

#include "unit/unit_test.h"

using namespace windows_error;

/// Steps of which one fails for a while.
struct FakeSteps : ReplacementSteps {
    std::string failing;
    std::uint32_t error = 0;    // Windows' answer to that one
    int times = 1;              // so often
    std::uint32_t opening = 0;  // Windows' answer where a file is opened alone
    std::string done;
    int pauses = 0;

    bool isProtected(const std::wstring&) override { return failing == "protected"; }
    std::wstring nameBeside(const std::wstring& path) override { return path + L".tmp"; }
    std::uint32_t create(const std::wstring&) override { return take("create"); }
    std::uint32_t write(std::string_view) override { return take("write"); }
    std::uint32_t flush() override { return take("flush"); }
    void close() override { take("close"); }
    std::uint32_t move(const std::wstring&, const std::wstring&) override { return take("move"); }
    std::uint32_t openAlone(const std::wstring&) override { return opening; }
    std::uint32_t remove(const std::wstring& path) override {
        EXPECT_EQ(path, L"\\\\?\\c:\\l.lst.tmp");
        return take("remove");
    }
    void pause() override { ++pauses; }

    std::uint32_t take(const std::string& step) {
        if (!done.ends_with(step + " ")) done += step + " ";
        return step == failing && times-- > 0 ? error : 0;
    }
};

TEST(FileReplacement, OpensAFileOnceNobodyIsInTheWay) {
    const std::tuple<std::uint32_t, int, int> cases[] = {
        {kSharingViolation, 3, 3},
        {kAccessDenied, 3, 3},  // it is about to go
        {kLockViolation, 1000, 2000 / kReplacementPause},
        {kFileNotFound, 1, 0}};
    for (const auto& [error, failing, expected] : cases) {
        int opened = 0, pauses = 0;
        const auto open = [&, most = failing, code = error] { return opened++ < most ? code : 0; };
        const bool gone = error == kFileNotFound || failing == 1000;
        EXPECT_EQ(openWhenFree(open, [&] { ++pauses; }), gone ? error : 0);
        EXPECT_EQ(pauses, expected);
    }
}

// A file must not be moved while it is open, nor stay beside the old one when it could not be.
TEST(FileReplacement, LeavesTheOldFileOrWaitsTwoSecondsForAnotherProgram) {
    constexpr std::uint32_t kDiskFull = 112;
    constexpr int kAllPauses = 2000 / kReplacementPause;
    const std::tuple<const char*, std::uint32_t, std::uint32_t, int, int, int, const char*>
        cases[] = {
            {"protected", 0, 0, 1, 75, 0, ""},
            {"create", kAccessDenied, 0, 1, 75, 0, "create "},
            {"write", kDiskFull, 0, 1, 75, 0, "create write close remove "},
            {"flush", kDiskFull, 0, 1, 75, 0, "create write flush close remove "},
            {"move", kDiskFull, 0, 1, 75, 0, "create write flush close move close remove "},
            {"", 0, 0, 0, 0, 0, "create write flush close move close "},
            {"move", kSharingViolation, 0, 3, 0, 3, "create write flush close move close "},
            {"move", kSharingViolation, 0, 999, 70, kAllPauses,
             "create write flush close move close remove "},
            // As Windows often says it; and where it was let go of just now.
            {"move", kAccessDenied, kSharingViolation, 3, 0, 3,
             "create write flush close move close "},
            {"move", kAccessDenied, 0, 1, 0, 1, "create write flush close move close "},
            {"move", kAccessDenied, kAccessDenied, 1, 75, 0,
             "create write flush close move close remove "},
        };
    for (const auto& [failing, error, opening, times, number, pauses, done] : cases) {
        FakeSteps steps;
        steps.failing = failing;
        steps.error = error;
        steps.times = times;
        steps.opening = opening;
        const auto write = [](const ByteSink& file) { file("nouveau"); };
        EXPECT_EQ(raised([&] { replaceFile(L"c:\\l.lst", write, steps); }), number) << failing;
        EXPECT_EQ(steps.pauses, pauses) << failing;
        EXPECT_EQ(steps.done, done);
    }
}

// Tags as Windows gives them to directories; they count only with the attribute.
TEST(DirectoryEntry, IsWhatItsAttributesAndTagSay) {
    using namespace attribute;
    constexpr std::uint32_t kBoth = kHidden | kSystem, kReparse = kDirectory | kReparsePoint;
    const std::tuple<std::uint32_t, std::uint32_t, bool, bool> cases[] = {
        {kSystem, 0, false, false},
        {kHidden, 0, true, false},
        {kBoth, 0, true, false},
        {kDirectory | kSystem, 0, false, false},
        {kDirectory | kHidden, 0, false, false},
        {kDirectory | kBoth, 0, true, false},
        {kReparse, kMountPointTag, false, true},  // junction, mounted folder
        {kDirectory, kMountPointTag, false, false},
        {kReparse, 0xA000000C, false, true},   // symbolic link
        {kReparse, 0x9000001A, false, false},  // in a cloud
        {kReparse, 0x80000013, false, false},  // deduplicated
    };
    for (const auto& [attributes, tag, leftOut, link] : cases) {
        const DirectoryEntry entry = directoryEntry(L"nom", attributes, tag);
        EXPECT_EQ(entry.isLeftOut, leftOut) << attributes;
        EXPECT_EQ(entry.isLink, link) << attributes << ' ' << tag;
        EXPECT_EQ(entry.isDirectory, (attributes & kDirectory) != 0) << attributes;
    }
}

TEST(LongPath, IsTheFormThatWindowsTakesAtAnyLength) {
    EXPECT_EQ(longPath(L"c:/plans\\\\a"), L"\\\\?\\c:\\plans\\a");
    EXPECT_EQ(longPath(L"\\\\serveur\\partage\\\\a"), L"\\\\?\\UNC\\serveur\\partage\\a");
    for (const wchar_t* other :
         {L"plans\\a", L"c:a", L"\\a", L"\\\\?\\c:\\a", L"\\\\.\\COM1", L""}) {
        EXPECT_EQ(longPath(other), other);
    }
}

TEST(FileError, TellsWhatIsMissingFromWhatIsRefused) {
    using namespace windows_error;
    const std::tuple<std::uint32_t, int, int, bool> cases[] = {
        {kFileNotFound, 53, 76, true},      {kPathNotFound, 76, 76, true},
        {kBadNetworkPath, 76, 76, false},   {kInvalidName, 76, 76, true},
        {kSharingViolation, 70, 70, false}, {kNameTooLong, 75, 76, true},
        {kAccessDenied, 75, 70, false},     {1, 75, 76, false}};
    for (const auto& [code, file, directory, nothing] : cases) {
        EXPECT_EQ(saysNothingIsThere(code), nothing) << code;
        EXPECT_EQ(fileError(code, L"c:\\a").number, file) << code;
        EXPECT_EQ(directoryError(code, L"c:\\a").number, directory) << code;
    }
    EXPECT_TRUE(has(fileError(kFileNotFound, L"c:\\a").text, L"c:\\a"));
}
