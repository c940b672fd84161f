// Where windows and their controls stand, on plain numbers.

#include "rules/placement.h"
#include "unit/unit_test.h"

constexpr Size kUnit{6, 13};
constexpr Area kButton{10, 20, 70, 40};

static Area placed(Growth across, Growth down, Size client) {
    ControlLayout layout({400, 300}, kUnit, {4, 8});  // 6 and 13 pixels
    layout.add(kButton, across, down);
    return layout.arranged(client).front();
}

TEST(Lengths, AreScaledAsWindowsDoes) {
    EXPECT_EQ(scaled(5, 1, 2), 3);
    EXPECT_EQ(scaled(-5, 1, 2), -3);
    EXPECT_EQ(scaled(2'000'000, 3'000, 2'000), 3'000'000);
    EXPECT_EQ(twipsOf(100, 96), 1500);
    EXPECT_EQ(pixelsOf(1500, 144), 150);
}

TEST(ControlLayout, FollowsTheEdgesOfTheWindow) {
    EXPECT_EQ(placed(Growth::Stay, Growth::Stay, {500, 330}), kButton);
    EXPECT_EQ(placed(Growth::Move, Growth::Stretch, {500, 330}), (Area{110, 20, 170, 70}));
    EXPECT_EQ(placed(Growth::Stretch, Growth::Move, {500, 330}), (Area{10, 50, 170, 70}));
    EXPECT_EQ(placed(Growth::Move, Growth::Stretch, {397, 290}), (Area{7, 20, 67, 30}));
    EXPECT_EQ(placed(Growth::Stretch, Growth::Move, {100, 100}), (Area{10, 7, 64, 27}))
        << "it shrinks no further";
}

TEST(ControlLayout, MeasuresByTheFontInUse) {
    ControlLayout layout({400, 300}, kUnit, {4, 8});
    layout.add(kButton, Growth::Move, Growth::Stay);
    layout.measureBy({9, 26});
    EXPECT_EQ(layout.templateClient(), (Size{600, 600}));
    EXPECT_EQ(layout.smallestClient(), (Size{591, 574}));
    EXPECT_EQ(layout.arranged({610, 600}).front(), (Area{25, 40, 115, 80}));
}

TEST(InSight, FindsThePlaceOfAMinimisedWindow) {
    const Monitor barsAbove{{0, 0, 1920, 1080}, {60, 40, 1920, 1080}};
    EXPECT_EQ(placeOnScreen({100, 200, 700, 800}, barsAbove), (Area{160, 240, 760, 840}));
}
