#include "worklist/pass.h"

#include "unit/worklist/pass_fixture.h"

namespace {

/// A step of a pass, and what stands after it.
struct Step {
    const char* before;
    std::function<bool(Pass&)> take;
    const char* after;
    int current;
    bool opens;  ///< the document of the current line is to be opened
};

using Steps = PassFixture;

void check(const std::vector<Step>& steps, const std::function<Pass&(const char*)>& prepare) {
    for (const Step& step : steps) {
        Pass& pass = prepare(step.before);
        EXPECT_EQ(step.take(pass), step.opens) << step.before << " -> " << step.after;
        EXPECT_EQ(codesOf(pass), step.after) << step.before;
        EXPECT_EQ(pass.current(), step.current) << step.before << " -> " << step.after;
    }
}

}  // namespace

TEST_F(Steps, StartAtTheFirstLineToDoOrBesideAGivenOne) {
    const auto start = [](Pass& p) { return p.start(); };
    const auto at1 = [](Pass& p) { return p.startAt(1); };
    const auto after1 = [](Pass& p) { return p.startAfter(1); };
    check(
        {
            {"00", start, "30", 0, true},
            {"1200", start, "1230", 2, true},
            {"1330", start, "1300", 1, true},  // lines left in progress are to do again
            {"1x00", start, "1x30", 2, true},
            {"120", start, "123", 3, false},  // the last line is never opened
            {"3", start, "3", 1, false},
            {"12", start, "12", 2, false},
            {"000", at1, "030", 1, true},
            {"00", at1, "03", 1, true},
            {"0000", after1, "0030", 2, true},
            {"000", after1, "003", 2, true},
            {"001", after1, "001", 3, false},
        },
        [&](const char* codes) -> Pass& { return begin(listOf(std::string(codes))); });
}

TEST_F(Steps, LeadFromOneLineToAnother) {
    const auto done = [](Pass& p) { return p.advance(LineState::Done); };
    const auto skip = [](Pass& p) { return p.advance(LineState::ToDo); };
    const auto back = [](Pass& p) { return p.stepBack(); };
    const auto skipAndBack = [=](Pass& p) { return skip(p) && back(p); };
    const auto endAndBack = [=](Pass& p) { return !skip(p) && back(p); };
    const auto noneAndOn = [=](Pass& p) { return !back(p) && done(p); };
    check(
        {
            {"0012", done, "1312", 1, true},
            {"0120", skip, "0123", 3, true},
            {"010", back, "010", -1, false},
            {"00", skipAndBack, "30", 0, true},
            {"0110", skipAndBack, "3110", 0, true},
            {"01", endAndBack, "31", 0, true},   // the search begins at the last line
            {"100", noneAndOn, "130", 1, true},  // without a current line none is marked
            {"120", back, "123", -1, false},     // the line in progress past the end stays
        },
        [&](const char* codes) -> Pass& { return started(codes); });
}

TEST_F(Steps, EditsFindTheCurrentLineAgain) {
    const auto change = [](std::vector<int> lines) {
        return [=](Pass& p) { return p.change(only(lines), LineState::Seen); };
    };
    const auto eliminate = [](LineSelected chosen, Eliminate states) {
        return [=](Pass& p) { return p.eliminate(chosen, states); };
    };
    const auto reset = [](std::vector<int> lines) {
        return [=](Pass& p) { return p.reset(only(lines)), true; };
    };
    const auto resume = [](int line) { return [=](Pass& p) { return p.resumeAt(line); }; };
    check(
        {
            {"x00", change({0}), "230", 1, true},
            {"10200", eliminate(kAllLines, Eliminate::DoneAndSeen), "300", 0, true},
            {"10200", eliminate(only({0, 1}), Eliminate::DoneAndSeen), "3200", 0, true},
            {"1122", eliminate(kAllLines, Eliminate::Seen), "11", 4, false},
            {"12", eliminate(kAllLines, Eliminate::DoneAndSeen), "", 2, false},
            {"10200", reset({0, 2}), "30000", 0, true},
            {"12", reset({1}), "13", 1, true},
            {"102002", resume(2), "102302", 3, true},
            {"102002", resume(1), "132002", 1, true},
            {"102002", resume(5), "102002", 5, false},  // the last line, as it is
        },
        [&](const char* codes) -> Pass& { return started(codes); });
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
    EXPECT_TRUE(lines[0].reload);
    EXPECT_FALSE(lines[1].reload || lines[2].reload);
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
    pass->advance(LineState::Done, Saved::Yes);
    pass->stepBack();  // past the skipped line's end again
    pass->openCurrent();
    clock.seconds += 5;
    const auto& lines = pass->list().lines;
    pass->countOpenTime();
    EXPECT_EQ(lines[0].history.secondsOpen, 35);
    pass->closeOpen();
    EXPECT_EQ(lines[0].history, (LineHistory{0, 35, Saved::Unknown, {}}));
    EXPECT_EQ(lines[1].history, (LineHistory{clock.seconds - 5, 10, Saved::Yes, {}}));
    // Back to do, a line has not been marked.
    pass->reset(only({1}));
    EXPECT_EQ(lines[1].history, (LineHistory{0, 10, Saved::Unknown, {}}));
    // A document that is open though its line is gone is nobody's.
    started("011");
    pass->resumeAt(2);
    pass->openCurrent();
    pass->eliminate(kAllLines, Eliminate::DoneAndSeen);
    pass->takeAsSaved();
    clock.seconds += 5;
    pass->closeOpen();
    EXPECT_EQ(lines[0].history.secondsOpen, -1);
}
