#include "input/judge.h"

#include "unit/unit_test.h"

using Kind = Deed::Kind;

struct JudgeTest : testing::Test {
    Moment time = 0;
    Judge judge{{.time = 500, .width = 4, .height = 4}, [this] { return time; }};
    const struct : EventSink {
        void raise(int, Event) override {}
    } window{};

    void at(Moment now, void (Judge::*deed)()) {
        time = now;
        (judge.*deed)();
    }
    /// A command keeps its user waiting until then.
    void workUntil(Moment end) {
        judge.handlerBegins(DuringSearch::Drop);
        { const CallOut out(judge); }
        at(end, &Judge::handlerEnds);
        judge.atRest();
    }
    Press pressed(Moment moment, int x = 100, int y = 100) {
        judge.take({.kind = Kind::Press, .time = moment, .x = x, .y = y});
        return *judge.situation().press;
    }
    Press keyed(Moment moment, bool repeated = false, Kind kind = Kind::Key,
                int key = virtual_key::kSpace) {
        judge.take({.kind = kind, .time = moment, .key = key, .repeated = repeated});
        return *judge.situation().press;
    }
    Press keyUp(Moment moment, int key = virtual_key::kSpace) {
        return keyed(moment, false, Kind::KeyUp, key);
    }
    /// Whether what is handled now may start a command.
    bool starts() { return judge.judge({.kind = Kind::Command}) == Verdict::Counts; }
    bool pressStarts(Moment moment) { return pressed(moment, static_cast<int>(moment)), starts(); }
};

TEST_F(JudgeTest, WhatWasPressedWhileTheProgramWorkedComesLate) {
    EXPECT_TRUE(pressStarts(1000));
    workUntil(5000);
    EXPECT_FALSE(pressStarts(3000));
    EXPECT_FALSE(pressStarts(5000));
    EXPECT_TRUE(pressStarts(5001));
    // The press counts, not when it is let go.
    pressed(5500, 500);
    workUntil(6000);
    keyed(6100);
    judge.take({.kind = Kind::Release});
    EXPECT_FALSE(starts());
    // What no person pressed is never late.
    judge.take({.kind = Kind::Other});
    EXPECT_TRUE(starts());
    pressed(5900, 900);
    judge.messageHandled();
    EXPECT_TRUE(starts());
    // A handler that called nobody and searched nothing took no time.
    judge.handlerBegins(DuringSearch::Drop);
    at(9000, &Judge::handlerEnds);
    EXPECT_TRUE(pressStarts(8000));
}

TEST_F(JudgeTest, ALongLeaveMakesNoPressLate) {
    constexpr Moment kDay = 86'400'000;
    workUntil(kDay);
    for (const Moment days : {24, 25, 40, 49, 50, 1000}) {
        const Moment now = kDay + days * kDay;
        EXPECT_TRUE(pressStarts(widened(static_cast<std::uint32_t>(now - 5), now))) << days;
    }
    // The 32 bits of a message wrap around between the press and now.
    EXPECT_EQ(widened(0xFFFFFFF0, 0x1'0000'0010), 0xFFFFFFF0U);
    EXPECT_EQ(widened(0x20, 0x1'FFFF'FFF0), 0x2'0000'0020U) << "dated a little after now";
    EXPECT_EQ(widened(0x10, 0x10), 0x10U);
}

TEST_F(JudgeTest, ADoubleClickIsTwoPressesSoonAndNear) {
    // The third is a first one again.
    const std::tuple<Moment, int, int, bool> presses[] = {
        {1000, 100, 100, false}, {1500, 104, 96, true},  {1700, 100, 100, false},
        {2201, 100, 100, false}, {2701, 100, 100, true}, {2750, 100, 100, false},
        {2800, 105, 100, false}};
    for (const auto& [moment, x, y, second] : presses) {
        EXPECT_EQ(pressed(moment, x, y).second, second) << moment;
    }
    at(2500, &Judge::windowShown);
    EXPECT_FALSE(pressed(2900, 105).onNewWindow);
    EXPECT_FALSE(pressed(3000, 105).second);
    at(3050, &Judge::windowShown);
    time = 3100;
    EXPECT_EQ(judge.judgeActivation(105, 100), Verdict::Drops);
    EXPECT_EQ(judge.judgeActivation(205, 100), Verdict::Counts);
    EXPECT_TRUE(pressed(3100, 105).onNewWindow);
    EXPECT_FALSE(pressed(3200, 200).onNewWindow);
    // What Windows makes of a touch is the same press.
    judge.take({.kind = Kind::Touch, .time = 5000});
    judge.take({.kind = Kind::Press, .time = 5100, .ofTouch = true});
    EXPECT_EQ(judge.situation().press->time, 5000U);
    EXPECT_FALSE(judge.situation().press->second);
}

TEST_F(JudgeTest, AHeldKeyIsPressedOnce) {
    EXPECT_FALSE(keyed(1000).repeated);
    EXPECT_TRUE(keyed(1500, true).repeated);
    EXPECT_FALSE(keyUp(1530).repeated) << "letting go of it is the one press";
    // Up and down again in no time.
    EXPECT_TRUE(keyed(1530).repeated);
    EXPECT_TRUE(keyUp(1600).repeated);
    EXPECT_FALSE(keyed(1700).repeated);
    EXPECT_FALSE(keyUp(1750).repeated);
    // It was pressed when it went down first.
    keyed(2000);
    EXPECT_EQ(keyed(2500, true).time, 2000U);
    // One let go here that went down elsewhere.
    EXPECT_TRUE(keyUp(3000, virtual_key::kSpace + 1).repeated);
}

TEST_F(JudgeTest, OneEscapeEndsASearchAndThoseThatReplacedIt) {
    const auto begin = [&](Moment began, DuringSearch asked) {
        time = began;
        judge.handlerBegins(asked);
        judge.searchBegins(window, SearchKind::Documents);
    };
    const auto end = [&] {
        judge.searchEnds();
        judge.handlerEnds();
    };
    const auto escapeStops = [&](Moment moment) {
        return judge.take({.kind = Kind::Key, .time = moment, .key = virtual_key::kEscape}) ==
               Verdict::StopsSearch;
    };
    const auto type = [&] {
        judge.judge(
            {.kind = Kind::Event, .window = &window, .duringSearch = DuringSearch::Restart});
    };
    begin(1000, DuringSearch::Drop);
    EXPECT_TRUE(judge.searchGoesOn());
    type();
    EXPECT_FALSE(judge.searchGoesOn() || judge.searchStopped());
    end();
    begin(2000, DuringSearch::Restart);
    EXPECT_FALSE(judge.searchGoesOn()) << "yet a newer one waits";
    end();
    begin(3000, DuringSearch::Drop);
    EXPECT_TRUE(judge.searchGoesOn());
    EXPECT_TRUE(escapeStops(1500)) << "pressed during the first one";
    EXPECT_TRUE(judge.searchStopped() && !judge.searchGoesOn());
    judge.searchEnds();
    judge.searchBegins(window, SearchKind::Documents);
    EXPECT_TRUE(judge.searchGoesOn()) << "another one of the same command";
    type();
    EXPECT_FALSE(judge.searchStopped()) << "what is typed afterwards counts";
    end();
    judge.atRest();
    begin(4000, DuringSearch::Drop);
    EXPECT_FALSE(escapeStops(1500));
    EXPECT_TRUE(judge.searchGoesOn());
    judge.judge({.kind = Kind::Event, .window = &window, .closes = true});
    type();
    EXPECT_THROW(judge.searchGoesOn(), ProgramEnd);
}
