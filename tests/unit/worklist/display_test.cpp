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
    for (const wchar_t* code : {L"0", L"10"}) EXPECT_EQ(labelOf(labels, code), &labels.LibAFaire);
    for (const wchar_t* code : {L"1", L"11"}) EXPECT_EQ(labelOf(labels, code), &labels.LibFait);
    for (const wchar_t* code : {L"2", L"12"}) EXPECT_EQ(labelOf(labels, code), &labels.LibVu);
    for (const wchar_t* code : {L"3", L"13"}) EXPECT_EQ(labelOf(labels, code), &labels.LibEnCours);
    for (const wchar_t* code : {L"", L"4", L"00", L"01", L"110", L"1 ", L"x"})
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
