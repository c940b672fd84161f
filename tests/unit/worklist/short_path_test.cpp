#include "worklist/short_path.h"

#include "unit/unit_test.h"

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
        {1, L"C:\\f.SLDPRT", L""},  // in the root: no level to hide
        {1, L"f.SLDPRT", L""},      // a bare name
        {1, L"C:\\A\\", L""},       // a trailing backslash hides no level
        {1, L"C:\\A\\B\\", L"C:\\..\\B\\"},
        {1, L"C:\\\\f", L"C:\\..\\f"},  // an empty level is a level
        {3, L"\\\\serveur\\plans\\f", L"\\\\\\..\\..\\..\\f"},
        {1, L"x\\\\y", L"x\\\\..\\y"},  // the "drive" is always two characters
    };
    for (const auto& c : cases) EXPECT_EQ(shortPath(c.depth, c.path), c.shown) << c.path;
}

TEST(shortPath, TakesSixteenBackslashesAndNoMore) {
    const std::wstring sixteen = L"c:" + std::wstring(16, L'\\') + L"f";
    EXPECT_EQ(shortPath(9, sixteen),
              L"c:\\..\\..\\..\\..\\..\\..\\..\\..\\..\\" + std::wstring(6, L'\\') + L'f');
    EXPECT_EQ(raised([&] { shortPath(1, sixteen + L'\\'); }), 0);
    for (const int depth : {0, 1})
        EXPECT_EQ(raised([&] { shortPath(depth, L"c:\\" + sixteen); }), 9) << depth;
}
