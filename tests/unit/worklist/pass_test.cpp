
#include "unit/worklist/pass_fixture.h"

using Steps = PassFixture;

TEST_F(Steps, LeadFromOneLineToAnother) {
    using Step = std::function<bool(Pass&)>;
    const auto all = [](const std::vector<Step>& steps) {
        return [=](Pass& p) {
            bool opens = false;
            for (const Step& step : steps) opens = step(p);
            return opens;
        };
    };
    const auto on = [](LineState mark) { return [=](Pass& p) { return p.advance(mark); }; };
    const Step done = on(LineState::Done), skip = on(LineState::ToDo);
    const Step start = [](Pass&p) { return p.start(); }, back = [](Pass&p) { return p.stepBack(); };
    const Step at1 = [](Pass& p) { return p.startAt(1); };
    const Step after1 = [](Pass& p) { return p.startAfter(1); };
    // The codes before and after, which line is current, and whether its document is to be opened.
    const std::tuple<const char*, Step, const char*, int, bool> cases[] = {
        {"00", start, "30", 0, true},
        {"1200", start, "1230", 2, true},
        {"1330", start, "1300", 1, true},  // lines left in progress are to do again
        {"1x00", start, "1x30", 2, true},
        {"120", start, "123", 3, false},  // the last line is never opened
        {"000", at1, "030", 1, true},
        {"00", at1, "03", 1, true},
        {"000", after1, "003", 2, true},
        {"001", after1, "001", 3, false},
        {"0012", all({start, done}), "1312", 1, true},
        {"0120", all({start, skip}), "0123", 3, true},
        {"010", all({start, back}), "010", -1, false},
        {"00", all({start, skip, back}), "30", 0, true},
        {"0110", all({start, skip, back}), "3110", 0, true},
        {"01", all({start, skip, back}), "31", 0, true},    // the search begins at the last line
        {"100", all({start, back, done}), "130", 1, true},  // without a current line none is marked
        {"120", all({start, back}), "123", -1, false},  // the line in progress past the end stays
    };
    for (const auto& [before, take, codes, current, opens] : cases) {
        Pass& begun = begin(listOf(std::string(before)));
        EXPECT_EQ(take(begun), opens) << before << " -> " << codes;
        EXPECT_EQ(codesOf(begun), codes) << before;
        EXPECT_EQ(begun.current(), current) << before << " -> " << codes;
    }
}

TEST_F(Steps, EliminatingMovesAllButTheReloadFlags) {
    begin(listOf(std::vector<std::string>{"11", "0", "2", "10", "0"})).start();
    EXPECT_EQ(codesOf(*pass), "13200");
    pass->eliminate(kAllLines, Eliminate::DoneAndSeen);
    EXPECT_EQ(codesOf(*pass), "300");
    const auto& lines = pass->list().lines;
    EXPECT_EQ(lines[0].path, "c:\\1");
    EXPECT_EQ(lines[2].path, "c:\\4");
    EXPECT_EQ(lines[2].fileLine, 4);
    EXPECT_TRUE(lines[0].reload && !lines[1].reload && !lines[2].reload);
}

TEST_F(Steps, SearchForTheCurrentLineReadsTheRowPastTheLastOne) {
    const auto search = [&] { return pass->eliminate(only({}), Eliminate::Seen); };
    started(std::string(8000, '1'));
    EXPECT_FALSE(search());
    started(std::string(8001, '1'));
    EXPECT_EQ(raised(search), 9);
    started(std::string(8000, '1') + "0");
    EXPECT_TRUE(search());
}

TEST_F(Steps, NoteWhenADocumentWasMarkedAndHowLongItWasOpen) {
    started("000");
    pass->openCurrent();
    clock.seconds += 30;
    pass->advance(LineState::ToDo);
    pass->openCurrent();
    clock.seconds += 10;
    pass->noteSaving(Saved::Yes, Remark::Saving::Silent, 0);
    pass->advance(LineState::Done);
    pass->stepBack();  // past the skipped line's end again
    pass->openCurrent();
    clock.seconds += 5;
    const auto& lines = pass->list().lines;
    pass->countOpenTime();
    EXPECT_EQ(lines[0].history.secondsOpen, 35);
    pass->closeOpen();
    EXPECT_EQ(lines[0].history, (LineHistory{0, 35, Saved::Unknown, {}}));
    EXPECT_EQ(lines[1].history, (LineHistory{clock.seconds - 5, 10, Saved::Yes, {}}));
    // Back to do, a line has not been marked; it was saved all the same.
    pass->reset(only({1}));
    EXPECT_EQ(lines[1].history, (LineHistory{0, 10, Saved::Yes, {}}));
    // A document that is open keeps its line, wherever that stands; if it is gone, it is nobody's.
    for (const bool gone : {false, true}) {
        started(gone ? "011" : "1100");
        if (gone) pass->resumeAt(2);
        pass->openCurrent();
        pass->eliminate(kAllLines, Eliminate::DoneAndSeen);
        pass->takeAsSaved();
        clock.seconds += 5;
        pass->closeOpen();
        EXPECT_EQ(lines[0].history.secondsOpen, gone ? -1 : 5);
    }
}
