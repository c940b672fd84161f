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

TEST(StateLabels, HaveTheirOwnWidths) {
    const StateLabels labels = standardLabels();
    EXPECT_EQ(labels.LibAFaire, L"              ");
    EXPECT_EQ(labels.LibX, L" X   ");
    EXPECT_EQ(labels.LibVu, L" Vu            ");
    EXPECT_EQ(labels.LibEnCours, L" EnCours  ");
    EXPECT_EQ(labels.LibFait, L" Fait          ");
    EXPECT_EQ(labels.LibAFaire.size(), 14U);
    EXPECT_EQ(labels.LibVu.size(), 15U);
    EXPECT_EQ(labels.LibFait.size(), 15U);
    EXPECT_EQ(labels.LibEnCours.size(), 10U);
}

TEST(StateLabels, BelongToExactCodes) {
    const StateLabels labels = standardLabels();
    const struct {
        const wchar_t* code;
        const std::wstring* label;
    } cases[] = {
        {L"0", &labels.LibAFaire},
        {L"10", &labels.LibAFaire},
        {L"1", &labels.LibFait},
        {L"11", &labels.LibFait},
        {L"2", &labels.LibVu},
        {L"12", &labels.LibVu},
        {L"3", &labels.LibEnCours},
        {L"13", &labels.LibEnCours},
        {L"", nullptr},
        {L"4", nullptr},
        {L"14", nullptr},
        {L"00", nullptr},
        {L"01", nullptr},
        {L"110", nullptr},
        {L"20", nullptr},
        {L"1 ", nullptr},
        {L"x", nullptr},
        {L"100", nullptr},
    };
    for (const auto& c : cases) EXPECT_EQ(labelOf(labels, c.code), c.label) << c.code;
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
