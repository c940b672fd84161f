// What counts, as a table: a deed a row, a situation a column. "Presses and marks" in
// docs/windows.md says why.

#include "input/verdict.h"

#include "unit/unit_test.h"

using Kind = Deed::Kind;
using Target = Deed::Target;
using Wish = Situation::Wish;
using enum DuringSearch;
using virtual_key::kEnter, virtual_key::kEscape, virtual_key::kSpace;

const struct : EventSink {
    void raise(int, Event) override {}
} window, other;

constexpr Moment kWorked = 5000;
constexpr Moment kSince = 9000;

// What may have been pressed.
constexpr Press kFresh{.time = kWorked + 1};
constexpr Press kLate{.time = kWorked};
constexpr Press kRepeated{.time = kWorked + 1, .repeated = true};
constexpr Press kSecond{.time = kWorked + 1, .second = true};
constexpr Press kOnNewWindow{.time = kWorked + 1, .second = true, .onNewWindow = true};

/// What the program may be busy with, and each time what was pressed last.
static std::vector<std::vector<Situation>> situations() {
    const Situation atRest{.worked = kWorked};
    const Situation handling{.handling = true, .worked = kWorked};
    Situation callOut = handling;
    callOut.callsOut = 1;
    Situation searching = handling;
    searching.searching = &window;
    searching.searchingSince = kSince;
    Situation alone = searching;
    alone.alone = true;
    const auto with = [](Situation situation, std::optional<Press> press, int questions = 0) {
        situation.press = press;
        situation.questions = questions;
        return situation;
    };
    Situation calling = alone;
    calling.callsOut = 1;
    return {{atRest, with(atRest, kFresh), with(atRest, kLate), with(atRest, kRepeated),
             with(atRest, kSecond), with(atRest, kOnNewWindow)},
            {handling, with(handling, kFresh)},
            {callOut, with(callOut, kFresh), with(callOut, kLate), with(callOut, kFresh, 1)},
            {searching, with(searching, kFresh), with(searching, kOnNewWindow)},
            {alone, with(alone, kFresh), with(alone, kLate), with(alone, kRepeated),
             with(alone, kOnNewWindow), with(calling, kFresh), with(alone, kFresh, 1)}};
}

/// A letter for each: it counts, drops, stops or restarts the search, or ends the program.
static std::string verdictsOn(const Deed& deed) {
    std::string verdicts;
    for (const auto& group : situations()) {
        for (const Situation& situation : group) {
            verdicts += "C-SRE"[static_cast<std::size_t>(verdictOn(situation, deed))];
        }
        verdicts += ' ';
    }
    verdicts.pop_back();
    return verdicts;
}

static Deed message(Kind kind, Target target, int key = 0, bool withAlt = false) {
    return {.kind = kind, .target = target, .time = kSince, .key = key, .withAlt = withAlt};
}
static Deed escapeAt(Moment time) { return {.kind = Kind::Key, .time = time, .key = kEscape}; }
static Deed of(Kind kind, bool usable = true) {
    return {.kind = kind, .window = &window, .usable = usable};
}
static Deed command(bool takesSecond, DuringSearch asks = Drop, const EventSink* sink = &window,
                    bool sent = false) {
    return {.kind = Kind::Command,
            .window = sink,
            .duringSearch = asks,
            .takesSecond = takesSecond,
            .fromProgram = sent};
}
static Deed event(DuringSearch asks, const EventSink* sink = &window, bool closes = false) {
    return {.kind = Kind::Event, .window = sink, .closes = closes, .duringSearch = asks};
}

TEST(Verdict, OnEachDeedInEachSituation) {
    using enum Deed::Target;
    const std::tuple<const char*, Deed, const char*> rows[] = {
        // At rest: nothing pressed, a fresh press, a late one, a held key, a second press, one on a
        // new window. Handling: nothing, fresh. A call out: nothing, fresh, late, fresh in a box.
        // Searching: nothing, fresh, on a new window. Alone: nothing, fresh, late, held, on a new
        // window, fresh during a call, fresh in a box.
        {"a press on a button", message(Kind::Press, Button), "CC--C- CC ---C --- SS---SC"},
        {"on the type or the tree", message(Kind::Press, SearchControl),
         "CCCCCC CC CCCC CCC CCCCCCC"},
        {"elsewhere", message(Kind::Press, Other), "CCCCCC CC CCCC --- ------C"},
        {"a finger on one", message(Kind::Touch, Button), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"on the frame", message(Kind::FramePress, Window), "CCCCC- CC CCCC CC- CCCC-CC"},
        {"on a scroll bar", message(Kind::FramePress, Other), "CCCCC- CC CCCC --- ------C"},
        {"the right button there", message(Kind::Menu, SearchControl),
         "CCCCCC CC CCCC --- ------C"},
        {"a wheel there", message(Kind::Scroll, SearchControl), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"a wheel elsewhere", message(Kind::Scroll, Other), "CCCCCC CC CCCC --- ------C"},
        {"a key on a button", message(Kind::Key, Button, kSpace), "CC--C- CC ---C --- SS---SC"},
        {"Enter", message(Kind::Key, Button, kEnter), "CC--C- CC ---C --- SS---SC"},
        {"Escape", message(Kind::Key, Button, kEscape), "CC--C- CC ---C SSS SSSSSSC"},
        {"dated by a clock that stood still", escapeAt(kSince - 16), "CCCCCC CC CCCC SSS SSSSSSC"},
        {"from before the search", escapeAt(kSince - 17), "CCCCCC CC CCCC --- ------C"},
        {"a letter presses none", message(Kind::Key, Button, 'A'), "CCCCCC CC CCCC --- ------C"},
        {"a key in the tree", message(Kind::Key, SearchControl, 'A'), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"a blank in a field", message(Kind::Key, Other, kSpace), "CCCCCC CC CCCC --- ------C"},
        {"what it writes", message(Kind::Typed, Other), "CCCCCC CC CCCC --- ------C"},
        {"typed in the tree", message(Kind::Typed, SearchControl), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"the end of a key", message(Kind::KeyUp, Button, kSpace), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"Alt+F4", message(Kind::Key, Window, 0x73, true), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"Alt+Escape", message(Kind::Key, Window, kEscape, true), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"Alt+Space", message(Kind::Key, Other, kSpace, true), "CC-CCC CC CC-C --- ------C"},
        {"a posted click", message(Kind::Click, Button), "CCCCCC CC CCCC --- SS---SC"},
        {"any other message", message(Kind::Other, Button), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"a window under the pointer", of(Kind::Activate), "CCCCC- CC CCCC CC- CCCC-CC"},
        {"the system menu", of(Kind::OpenMenu), "CC-CCC CC CC-C CCC CC-CCCC"},
        {"help", {.kind = Kind::Aside, .takesSecond = false}, "CC---- -- ---- --- -------"},
        {"a command", command(false), "CC---- C- C--- C-- SS---S-"},
        {"one that may be taken back", command(true), "CC--C- C- C--- C-- SS---S-"},
        {"Enter in the tree", command(true, Reopen), "CC--C- C- C--- CC- SS---SC"},
        {"in another window", command(true, Reopen, &other), "CC--C- C- C--- C-- SS---S-"},
        {"a sent one", command(false, Drop, &window, true), "CCCCCC CC CCCC CCC SSSSSSC"},
        {"a key that acts everywhere", of(Kind::HotKeyCommand), "CC--C- -- ---- --- SS---S-"},
        {"for what is greyed", of(Kind::HotKeyCommand, false), "------ -- ---- --- -------"},
        {"an event whose turn has come", of(Kind::WaitedEvent), "CCCCCC CC CCCC CCC CCCCCCC"},
        {"for what is hidden by then", of(Kind::WaitedEvent, false), "------ -- ---- --- -------"},
        {"an event", event(Drop), "CCCCCC CC CCCC --- -------"},
        {"a newer search", event(Restart), "CCCCCC CC CCCC RRR RRRRRRR"},
        {"in another directory", event(Reopen), "CCCCCC CC CCCC RRR RRRRRRR"},
        {"of another window", event(Restart, &other), "CCCCCC CC CCCC --- -------"},
        {"the frame", event(Drop, &window, true), "CCCCCC CC CCCC EEE EEEEEEE"},
        {"another window's frame", event(Drop, &other, true), "CCCCCC CC CCCC CCC SSSSSSS"},
    };
    for (const auto& [what, deed, verdicts] : rows) EXPECT_EQ(verdictsOn(deed), verdicts) << what;
}

TEST(Verdict, OnASearchIsWhatTheUserWishes) {
    // What is typed takes no drive back.
    for (const auto& [opening, wish, goesOn] : {std::tuple(false, Wish::None, true),
                                                {false, Wish::Restart, false},
                                                {false, Wish::Stop, false},
                                                {true, Wish::Restart, true},
                                                {true, Wish::Reopen, false},
                                                {true, Wish::Stop, false}}) {
        const Situation searching{.searching = &window, .opening = opening, .wish = wish};
        EXPECT_EQ(searchGoesOn(searching), goesOn) << static_cast<int>(wish);
    }
}

TEST(Verdict, AsksHalfAMinuteAfterTheFrameWhetherToWaitForACall) {
    const Situation closing{.handling = true, .callsOut = 1, .closeAsked = 1000};
    EXPECT_FALSE(callIsOverdue(closing, 30'999));
    EXPECT_TRUE(callIsOverdue(closing, 31'000));
    Situation asked = closing, back = closing, open = closing;
    asked.questions = 1;
    back.callsOut = 0;
    open.closeAsked.reset();
    for (const Situation& situation : {asked, back, open}) {
        EXPECT_FALSE(callIsOverdue(situation, 31'000));
    }
}

TEST(Verdict, ShowsByThePointerWhoWaits) {
    std::vector<Pointer> pointers;
    for (const auto& group : situations()) pointers.push_back(pointerIn(group.back()));
    using enum Pointer;
    EXPECT_EQ(pointers, (std::vector{Arrow, Wait, Arrow, ArrowAtWork, Arrow}));
}
