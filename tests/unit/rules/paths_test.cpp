// What Windows is told of a path, and what its error numbers become.

#include <gtest/gtest.h>

#include "rules/windows_files.h"

TEST(LongPath, IsTheFormThatWindowsTakesAtAnyLength) {
    EXPECT_EQ(longPath(L"c:\\plans\\a"), L"\\\\?\\c:\\plans\\a");
    EXPECT_EQ(longPath(L"c:/plans\\\\a"), L"\\\\?\\c:\\plans\\a");
    EXPECT_EQ(longPath(L"\\\\serveur\\partage\\\\a"), L"\\\\?\\UNC\\serveur\\partage\\a");
    for (const wchar_t* other :
         {L"plans\\a", L"c:a", L"\\a", L"\\\\?\\c:\\a", L"\\\\.\\COM1", L""}) {
        EXPECT_EQ(longPath(other), other);
    }
}

TEST(FileError, TellsWhatIsMissingFromWhatIsRefused) {
    using namespace windows_error;
    const struct {
        std::uint32_t code;
        int file;
        int directory;
    } cases[] = {{kFileNotFound, 53, 76},     {kPathNotFound, 76, 76}, {kBadNetworkPath, 76, 76},
                 {kSharingViolation, 70, 70}, {kAccessDenied, 75, 70}, {1, 75, 76}};
    for (const auto& c : cases) {
        EXPECT_EQ(fileError(c.code, L"c:\\a").number, c.file) << c.code;
        EXPECT_EQ(directoryError(c.code, L"c:\\a").number, c.directory) << c.code;
    }
    EXPECT_NE(fileError(kFileNotFound, L"c:\\a").text.find(L"c:\\a"), std::wstring::npos);
}
