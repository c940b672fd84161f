#include <gtest/gtest.h>

#include "fakes/fake_controls.h"
#include "unit/raised.h"
#include "worklist/display_depth.h"
#include "worklist/display_line.h"
#include "worklist/state_labels.h"

TEST(DisplayLine, IsNumberLabelAndPath) {
    EXPECT_EQ(displayLine(0, L" Fait          ", L"c:\\a.SLDPRT", L"0"),
              L"0001   Fait          c:\\a.SLDPRT");
    EXPECT_EQ(displayLine(122, L"", L"c:\\a\\b\\f", L"1"), L"0123  c:\\..\\b\\f");
    EXPECT_EQ(displayLine(8000, L"", L"x", L"0"), L"8001  x");
    EXPECT_EQ(displayLine(9999, L"", L"x", L"0"), L"10000  x");
    EXPECT_EQ(displayLine(0, L" X   ", L"c:\\f", L"1"), L"0001   X   ");
}

TEST(DisplayLine, ShowsAPathOfAnyDepthWhole) {
    const std::wstring deep = L"c:" + std::wstring(40, L'\\') + L"f";
    EXPECT_EQ(shownPath(deep, L"0"), deep);
    EXPECT_EQ(raised([&] { shownPath(deep, L"1"); }), 9);
}

TEST(StateLabels, BelongToExactCodes) {
    const StateLabels labels = standardLabels();
    for (const char* code : {"0", "10"}) EXPECT_EQ(labelOf(labels, code), &labels.LibAFaire);
    for (const char* code : {"1", "11"}) EXPECT_EQ(labelOf(labels, code), &labels.LibFait);
    for (const char* code : {"2", "12"}) EXPECT_EQ(labelOf(labels, code), &labels.LibVu);
    for (const char* code : {"3", "13"}) EXPECT_EQ(labelOf(labels, code), &labels.LibEnCours);
    for (const char* code : {"", "4", "00", "01", "110", "1 ", "x"})
        EXPECT_EQ(labelOf(labels, code), nullptr) << code;
}

TEST(DisplayDepth, StaysBetweenNoughtAndNine) {
    FakeControl depth;
    depth.content = L"0";
    EXPECT_FALSE(hideOneLevelLess(depth));
    EXPECT_EQ(depth.content, L"0");
    for (int i = 0; i < 9; ++i) EXPECT_TRUE(hideOneLevelMore(depth));
    EXPECT_EQ(depth.content, L"9");
    EXPECT_FALSE(hideOneLevelMore(depth));
    EXPECT_EQ(depth.content, L"9");
    EXPECT_TRUE(hideOneLevelLess(depth));
    EXPECT_EQ(depth.content, L"8");
}
