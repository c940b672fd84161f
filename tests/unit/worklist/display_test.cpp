#include "fakes/fake_controls.h"
#include "unit/unit_test.h"
#include "worklist/list_display.h"

TEST(DisplayLine, IsNumberLabelAndPath) {
    EXPECT_EQ(displayLine(122, L" Vu ", L"c:\\a\\b\\f", 1), L"0123   Vu c:\\..\\b\\f");
    EXPECT_EQ(displayLine(0, L" X   ", L"c:\\f", 1), L"0001   X   ");
    EXPECT_EQ(displayLine(9999, L"", L"x", 0), L"10000  x");
    const std::wstring deep = L"c:" + std::wstring(40, L'\\') + L"f";
    EXPECT_EQ(displayLine(0, L"", deep, 0), L"0001  " + deep);
    EXPECT_EQ(raised([&] { displayLine(0, L"", deep, 1); }), 9);
}

TEST(StateLabels, BelongToExactCodes) {
    const auto labelOfText = [](const char* code) { return labelOf(StateCode(code)); };
    for (const char* code : {"0", "10"}) EXPECT_EQ(labelOfText(code), std::wstring(14, L' '));
    for (const char* code : {"1", "11"}) EXPECT_EQ(labelOfText(code), L" Fait          ");
    for (const char* code : {"2", "12"}) EXPECT_EQ(labelOfText(code), L" Vu            ");
    for (const char* code : {"3", "13"}) EXPECT_EQ(labelOfText(code), L" EnCours  ");
    for (const char* code : {"", "4", "00", "01", "110", "1 ", "x"}) {
        EXPECT_EQ(labelOfText(code), std::nullopt) << code;
    }
}

TEST(DisplayDepth, StaysBetweenNoughtAndNine) {
    FakeControl label;
    DisplayDepth depth(label);
    depth.reset();
    EXPECT_FALSE(depth.hideOneLess());
    EXPECT_EQ(label.content, L"0");
    for (int i = 0; i < 9; ++i) EXPECT_TRUE(depth.hideOneMore());
    EXPECT_FALSE(depth.hideOneMore());
    EXPECT_EQ(label.content, L"9");
    EXPECT_TRUE(depth.hideOneLess());
    EXPECT_EQ(depth.levels(), 8);
}

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
    for (const int depth : {0, 1}) {
        EXPECT_EQ(raised([&] { shortPath(depth, L"c:\\" + sixteen); }), 9) << depth;
    }
}
