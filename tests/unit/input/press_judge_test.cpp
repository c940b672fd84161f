#include "input/press_judge.h"

#include <gtest/gtest.h>

namespace {

constexpr int kSpace = 0x20;

struct PressJudgeTest : testing::Test {
    PressJudge judge{{.time = 500, .width = 4, .height = 4}};

    PressVerdict pressed(PressJudge::Time time, int x = 100, int y = 100) {
        judge.press(time, x, y);
        return judge.verdict();
    }
    PressVerdict keyed(PressJudge::Time time, bool repeated = false) {
        judge.keyDown(time, kSpace, repeated);
        return judge.verdict();
    }
};

}  // namespace

TEST_F(PressJudgeTest, WhatWasPressedWhileTheProgramWorkedComesLate) {
    EXPECT_FALSE(pressed(1000).late);
    judge.workEnded(5000);
    EXPECT_TRUE(pressed(3000).late);
    EXPECT_TRUE(pressed(5000).late);
    EXPECT_FALSE(pressed(5001, 300).late);
    EXPECT_TRUE(keyed(4999).late);
    EXPECT_FALSE(keyed(5002).late);
    // The press counts, not when it is let go.
    pressed(5500, 500);
    judge.workEnded(6000);
    judge.keyDown(6100, kSpace, false);
    judge.release();
    EXPECT_TRUE(judge.verdict().late);
    // What no person pressed is never late.
    judge.nothing();
    EXPECT_EQ(judge.verdict(), PressVerdict());
}

TEST_F(PressJudgeTest, TimesWrapAround) {
    judge.workEnded(0xFFFFFFF0);
    EXPECT_TRUE(pressed(0xFFFFFF00).late);
    EXPECT_FALSE(pressed(0x10).late);
    judge.workEnded(0x20);
    EXPECT_TRUE(pressed(0xFFFFFFFF).late);
}

TEST_F(PressJudgeTest, ADoubleClickIsTwoPressesSoonAndNear) {
    EXPECT_FALSE(pressed(1000).second);
    EXPECT_TRUE(pressed(1500, 104, 96).second);
    EXPECT_TRUE(pressed(1700).second);  // and a third is no better
    EXPECT_FALSE(pressed(2201).second);
    EXPECT_FALSE(pressed(2300, 105).second);
    judge.windowShown(2000);
    EXPECT_FALSE(pressed(2400, 105).onNewWindow);
    judge.windowShown(2450);
    EXPECT_TRUE(judge.foreseen(2500, 105, 100).onNewWindow);
    EXPECT_TRUE(pressed(2500, 105).onNewWindow);
    EXPECT_FALSE(pressed(2600, 200).onNewWindow);
}

TEST_F(PressJudgeTest, AHeldKeyIsPressedOnce) {
    EXPECT_FALSE(keyed(1000).repeated);
    EXPECT_TRUE(keyed(1500, true).repeated);
    judge.keyUp(1530, kSpace);
    EXPECT_FALSE(judge.verdict().repeated) << "letting go of it is the one press";
    // Up and down again in no time.
    EXPECT_TRUE(keyed(1530).repeated);
    judge.keyUp(1600, kSpace);
    EXPECT_TRUE(judge.verdict().repeated);
    EXPECT_FALSE(keyed(1700).repeated);
    judge.keyUp(1750, kSpace);
    EXPECT_FALSE(judge.verdict().repeated);
    // It was pressed when it went down first.
    keyed(2000);
    judge.workEnded(2100);
    EXPECT_TRUE(keyed(2500, true).late);
    // One let go here that went down elsewhere.
    judge.keyUp(3000, kSpace + 1);
    EXPECT_TRUE(judge.verdict().repeated);
}
