#include "worklist/short_path.h"

#include <gtest/gtest.h>

#include "unit/raised.h"

namespace {

/// A path with this many backslashes before the file's name: "c:\d\d\f".
std::wstring pathWithBackslashes(int count) {
    std::wstring path = L"c:\\";
    for (int i = 1; i < count; ++i) path += L"d\\";
    return path + L"f";
}

}  // namespace

TEST(shortPath, HidesTheFirstLevels) {
    constexpr wchar_t kPath[] = L"C:\\A\\B\\C\\f.SLDPRT";
    const struct {
        int depth;
        const wchar_t* path;
        const wchar_t* shown;
    } cases[] = {
        {0, kPath, L""},
        {-1, kPath, L""},
        {1, kPath, L"C:\\..\\B\\C\\f.SLDPRT"},
        {2, kPath, L"C:\\..\\..\\C\\f.SLDPRT"},
        {4, kPath, L"C:\\..\\..\\..\\f.SLDPRT"},
        {99, kPath, L"C:\\..\\..\\..\\f.SLDPRT"},
        {1, L"C:\\f.SLDPRT", L""},  // in the root: no level to hide
        {1, L"f.SLDPRT", L""},      // a bare name
        {1, L"C:\\A\\", L""},       // a trailing backslash hides no level
        {1, L"C:\\A\\B\\", L"C:\\..\\B\\"},
        {1, L"C:\\\\f", L"C:\\..\\f"},  // an empty level is a level
        {1, L"\\\\serveur\\plans\\f", L"\\\\\\..\\serveur\\plans\\f"},
        {3, L"\\\\serveur\\plans\\f", L"\\\\\\..\\..\\..\\f"},
        {1, L"x\\\\y", L"x\\\\..\\y"},  // the "drive" is always two characters
    };
    for (const auto& c : cases) EXPECT_EQ(shortPath(c.depth, c.path), c.shown) << c.path;
}

TEST(shortPath, TakesSixteenBackslashesAndNoMore) {
    EXPECT_EQ(shortPath(9, pathWithBackslashes(16)),
              L"c:\\..\\..\\..\\..\\..\\..\\..\\..\\..\\d\\d\\d\\d\\d\\d\\f");
    EXPECT_EQ(shortPath(1, pathWithBackslashes(16) + L"\\").substr(0, 8), L"c:\\..\\d\\");
    EXPECT_EQ(raised([] { shortPath(1, pathWithBackslashes(17)); }), 9);
    EXPECT_EQ(raised([] { shortPath(0, pathWithBackslashes(17)); }), 9);
}
