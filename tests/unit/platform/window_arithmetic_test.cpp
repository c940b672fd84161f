// Where windows and their controls stand, on plain numbers.

#include <gtest/gtest.h>

#include "platform/control_layout.h"
#include "platform/within_reach.h"

namespace {

constexpr Size kUnit{6, 13};
constexpr Area kButton{10, 20, 70, 40};

Area placed(Growth across, Growth down, Size client) {
    ControlLayout layout({400, 300}, kUnit);
    layout.add(kButton, across, down);
    return layout.arranged(client).front();
}

constexpr Monitor kLeft{{0, 0, 1920, 1080}, {0, 0, 1920, 1040}};
constexpr Monitor kAbove{{0, -1200, 1600, 0}, {0, -1200, 1600, -40}};

Area title(int left, int top) { return {left, top, left + 600, top + 30}; }

}  // namespace

TEST(Lengths, AreScaledAsWindowsDoes) {
    EXPECT_EQ(scaled(5, 1, 2), 3);
    EXPECT_EQ(scaled(-5, 1, 2), -3);
    EXPECT_EQ(scaled(2'000'000, 3'000, 2'000), 3'000'000);
    EXPECT_EQ(twipsOf(100, 96), 1500);
    EXPECT_EQ(pixelsOf(1500, 144), 150);
}

TEST(ControlLayout, FollowsTheEdgesOfALargerWindow) {
    EXPECT_EQ(placed(Growth::Stay, Growth::Stay, {500, 330}), kButton);
    EXPECT_EQ(placed(Growth::Move, Growth::Stretch, {500, 330}), (Area{110, 20, 170, 70}));
    EXPECT_EQ(placed(Growth::Stretch, Growth::Move, {500, 330}), (Area{10, 50, 170, 70}));
    EXPECT_EQ(placed(Growth::Move, Growth::Stretch, {100, 100}), kButton);
}

TEST(ControlLayout, MeasuresByTheFontInUse) {
    ControlLayout layout({400, 300}, kUnit);
    layout.add(kButton, Growth::Move, Growth::Stay);
    layout.measureBy({9, 26});
    EXPECT_EQ(layout.smallestClient(), (Size{600, 600}));
    EXPECT_EQ(layout.arranged({610, 600}).front(), (Area{25, 40, 115, 80}));
}

TEST(WithinReach, LeavesAWindowThatCanBeGrabbed) {
    EXPECT_EQ(cornerWithinReach(title(1900, 1000), true, kLeft), (Point{1900, 1000}));
    EXPECT_EQ(cornerWithinReach(title(-480, 100), false, kLeft), (Point{-480, 100}));
    EXPECT_EQ(cornerWithinReach(title(100, -15), false, kLeft), (Point{100, -15}));
}

TEST(WithinReach, BringsALostWindowOntoTheNearestMonitor) {
    EXPECT_EQ(cornerWithinReach(title(-500, 100), false, kLeft), (Point{-480, 100}));
    EXPECT_EQ(cornerWithinReach(title(5000, 9000), false, kLeft), (Point{1800, 1010}));
    EXPECT_EQ(cornerWithinReach(title(100, -16), false, kLeft), (Point{100, 0}));
    EXPECT_EQ(cornerWithinReach(title(-700, -5000), false, kAbove), (Point{-480, -1200}));
}

TEST(WithinReach, FindsTheCornerOfAMinimisedWindow) {
    const Monitor taskbarOnTop{{0, 0, 1920, 1080}, {0, 40, 1920, 1080}};
    EXPECT_EQ(cornerOnScreen({100, 200, 700, 800}, taskbarOnTop), (Point{100, 240}));
    EXPECT_EQ(cornerOnScreen({100, 200, 700, 800}, kLeft), (Point{100, 200}));
}
