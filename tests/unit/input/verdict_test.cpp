// Every row of "Presses and marks" in docs/windows.md that tells what counts is a row here.

#include "input/verdict.h"

#include "unit/unit_test.h"

namespace {

using Kind = Deed::Kind;
using Target = Deed::Target;
using Wish = Situation::Wish;

const struct : EventSink {
    void raise(int, Event) override {}
} window, other;

constexpr Moment kWorked = 5000;
constexpr Moment kSince = 9000;

// What the program may be busy with.
constexpr Situation kAtRest{.worked = kWorked};
constexpr Situation kHandling{.handling = true, .worked = kWorked};
constexpr Situation kCallOut{.handling = true, .callsOut = 1};
constexpr Situation kBoxDuringCall{.handling = true, .callsOut = 1, .questions = 1};
const Situation kSearching{.handling = true, .searching = &window, .searchingSince = kSince};

// What may have been pressed.
constexpr Press kFresh{.time = kWorked + 1};
constexpr Press kLate{.time = kWorked};
constexpr Press kRepeated{.time = kWorked + 1, .repeated = true};
constexpr Press kSecond{.time = kWorked + 1, .second = true};
constexpr Press kOnNewWindow{.time = kWorked + 1, .second = true, .onNewWindow = true};

Situation with(Situation situation, const std::optional<Press>& press) {
    situation.press = press;
    return situation;
}

Deed message(Kind kind, Target target, int key = 0, bool withAlt = false) {
    return {.kind = kind, .target = target, .time = kSince, .key = key, .withAlt = withAlt};
}
Deed altKey(int key, Target target) { return message(Kind::Key, target, key, true); }
Deed escapeAt(Moment time) {
    return {.kind = Kind::Key, .time = time, .key = virtual_key::kEscape};
}
Deed command(bool takesSecond, DuringSearch asks = DuringSearch::Drop,
             const EventSink* of = &window) {
    return {.kind = Kind::Command, .window = of, .duringSearch = asks, .takesSecond = takesSecond};
}
Deed event(DuringSearch asks, const EventSink* of = &window) {
    return {.kind = Kind::Event, .window = of, .duringSearch = asks};
}
Deed close(const EventSink* of) { return {.kind = Kind::Event, .window = of, .closes = true}; }

struct Row {
    const char* what;
    Situation situation;
    Deed deed;
    Verdict verdict = Verdict::Counts;
};

void expectVerdicts(const std::vector<Row>& rows) {
    for (const auto& [what, situation, deed, verdict] : rows) {
        EXPECT_EQ(verdictOn(situation, deed), verdict) << what;
    }
}

using enum Verdict;
using enum DuringSearch;

}  // namespace

TEST(Verdict, DropsPressesOnButtonsThatAreNotMeant) {
    using namespace virtual_key;
    const Deed press = message(Kind::Press, Target::Button);
    const Deed space = message(Kind::Key, Target::Button, kSpace);
    expectVerdicts({
        {"a press", with(kAtRest, kFresh), press},
        {"one from before the end of the last command", with(kAtRest, kLate), press, Drops},
        {"the second one on a new window", with(kAtRest, kOnNewWindow), press, Drops},
        {"the second one is up to the command", with(kAtRest, kSecond), press},
        {"while a call is out", with(kCallOut, kFresh), press, Drops},
        {"on a box that came up meanwhile", with(kBoxDuringCall, kFresh), press},
        {"while a handler runs: the event will tell", with(kHandling, kFresh), press},
        {"late, but on no button", with(kAtRest, kLate), message(Kind::Press, Target::Other)},
        {"its end", with(kCallOut, kLate), message(Kind::Release, Target::Button)},
        {"a key", with(kAtRest, kFresh), space},
        {"a key that is held", with(kAtRest, kRepeated), space, Drops},
        {"Enter", with(kAtRest, kLate), message(Kind::Key, Target::Button, kEnter), Drops},
        {"Escape", with(kCallOut, kFresh), message(Kind::Key, Target::Button, kEscape), Drops},
        {"a letter presses none", with(kCallOut, kLate), message(Kind::Key, Target::Button, 'A')},
        {"a blank in a field", with(kCallOut, kLate), message(Kind::Key, Target::Other, kSpace)},
        {"what is typed meanwhile", with(kCallOut, kFresh), message(Kind::Typed, Target::Other)},
        {"the end of a key", with(kCallOut, kLate), message(Kind::KeyUp, Target::Button, kSpace)},
        {"a click that a program posts", kCallOut, message(Kind::Click, Target::Button)},
        {"any other message", kCallOut, message(Kind::Other, Target::Button)},
    });
}

TEST(Verdict, LetsFramesWaitAndMenusComeUpOnlyWhenTheyAreMeant) {
    using namespace virtual_key;
    const Deed frame = message(Kind::FramePress, Target::Other);
    const Deed aside{.kind = Kind::Aside, .takesSecond = false};
    expectVerdicts({
        {"a frame pressed before the end of a command", with(kCallOut, kLate), frame},
        {"a frame that has just come up", with(kAtRest, kOnNewWindow), frame, Drops},
        {"the system menu", with(kAtRest, kFresh), {.kind = Kind::OpenMenu}},
        {"by an impatient press", with(kAtRest, kLate), {.kind = Kind::OpenMenu}, Drops},
        {"by an impatient key", with(kAtRest, kLate), altKey(kSpace, Target::Other), Drops},
        {"another key with Alt", with(kAtRest, kLate), altKey('F', Target::Other)},
        {"a window under the pointer", with(kAtRest, kSecond), {.kind = Kind::Activate}},
        {"it hides the new one", with(kAtRest, kOnNewWindow), {.kind = Kind::Activate}, Drops},
        {"help", with(kAtRest, kFresh), aside},
        {"help for a box", kHandling, aside, Drops},
        {"help before the end", with(kAtRest, kLate), aside, Drops},
    });
}

TEST(Verdict, StartsOneCommandAPress) {
    const Deed hotKey{.kind = Kind::HotKeyCommand, .window = &window};
    Deed greyed = hotKey;
    greyed.usable = false;
    Deed sent = command(false);
    sent.fromProgram = true;
    expectVerdicts({
        {"a press", with(kAtRest, kFresh), command(false)},
        {"a late one", with(kAtRest, kLate), command(true), Drops},
        {"a held key", with(kAtRest, kRepeated), command(true), Drops},
        {"the second of a double click", with(kAtRest, kSecond), command(false), Drops},
        {"where it may be taken back", with(kAtRest, kSecond), command(true)},
        {"on a window that came up between", with(kAtRest, kOnNewWindow), command(true), Drops},
        {"while another one runs", with(kHandling, kFresh), command(true), Drops},
        {"what no person pressed waits", kHandling, command(false)},
        {"what a program sends, whatever was pressed", with(kAtRest, kLate), sent},
        {"a key that acts everywhere", with(kAtRest, kFresh), hotKey},
        {"before the end", with(kAtRest, kLate), hotKey, Drops},
        {"meanwhile, as a message of a program", kHandling, hotKey, Drops},
        {"for what is greyed", with(kAtRest, kFresh), greyed, Drops},
        {"an event whose turn has come", kAtRest, {.kind = Kind::WaitedEvent}},
        {"for what is hidden now", kAtRest, {.kind = Kind::WaitedEvent, .usable = false}, Drops},
    });
}

TEST(Verdict, StopsAPassThatGoesOnAloneAtAnyPressOnAButton) {
    Situation alone = kSearching;
    alone.alone = true;
    alone.worked = kWorked;
    Situation asked = alone, called = alone;
    asked.questions = called.callsOut = 1;
    const Deed press = message(Kind::Press, Target::Button);
    const Deed space = message(Kind::Key, Target::Button, virtual_key::kSpace);
    const Deed hotKey{.kind = Kind::HotKeyCommand, .window = &window};
    expectVerdicts({
        {"a press", with(alone, kFresh), press, StopsSearch},
        {"during a call", with(called, kFresh), press, StopsSearch},
        {"from before it began", with(alone, kLate), press, Drops},
        {"the second of a double click on the answer", with(alone, kOnNewWindow), press, Drops},
        {"on the box that came up", with(asked, kFresh), press},
        {"in that box", with(asked, kFresh), message(Kind::Key, Target::Other, 'O')},
        {"on no button", with(alone, kFresh), message(Kind::Press, Target::Other), Drops},
        {"a key on a button", with(alone, kFresh), space, StopsSearch},
        {"one that is held since the answer", with(alone, kRepeated), space, Drops},
        {"a letter", with(alone, kFresh), message(Kind::Key, Target::Button, 'A'), Drops},
        {"Escape", called, escapeAt(kSince + 9), StopsSearch},
        {"a click that a program posts", alone, message(Kind::Click, Target::Button), StopsSearch},
        {"or sends", alone, command(false), StopsSearch},
        {"a key that acts everywhere", with(alone, kFresh), hotKey, StopsSearch},
        {"moving the window", with(alone, kFresh), message(Kind::FramePress, Target::Window)},
        {"its frame", called, close(&window), EndsProgram},
        {"the frame of the window that shows how far it is", alone, close(&other), StopsSearch},
        {"an event of a list", alone, event(Drop), Drops},
    });
}

TEST(Verdict, GivesAWindowThatSearchesWhatStopsOrReplacesItsSearch) {
    const auto fresh = with(kSearching, kFresh);
    expectVerdicts({
        {"Escape", kSearching, escapeAt(kSince + 9), StopsSearch},
        {"dated by a clock that stood still", kSearching, escapeAt(kSince - 16), StopsSearch},
        {"from before", kSearching, escapeAt(kSince - 17), Drops},
        {"a press on a button", fresh, message(Kind::Press, Target::Button), Drops},
        {"in another field", fresh, message(Kind::Press, Target::Other), Drops},
        {"in the type, the drives or the tree", fresh, message(Kind::Press, Target::SearchControl)},
        {"a key there", fresh, message(Kind::Key, Target::SearchControl, 'A')},
        {"a letter there", kSearching, message(Kind::Typed, Target::SearchControl)},
        {"a key elsewhere", fresh, message(Kind::Key, Target::Other, 'A'), Drops},
        {"a letter elsewhere", kSearching, message(Kind::Typed, Target::Other), Drops},
        {"a wheel there", kSearching, message(Kind::Scroll, Target::SearchControl)},
        {"a wheel elsewhere", kSearching, message(Kind::Scroll, Target::Other), Drops},
        {"a menu, which would hold it up", fresh, message(Kind::Menu, Target::SearchControl),
         Drops},
        {"the frame", fresh, message(Kind::FramePress, Target::Window)},
        {"the frame of a new window", with(kSearching, kOnNewWindow),
         message(Kind::FramePress, Target::Window), Drops},
        {"the scroll bar of a list", fresh, message(Kind::FramePress, Target::Other), Drops},
        {"Alt+F4", fresh, altKey(0x73, Target::Window)},
        {"Alt+Escape", fresh, altKey(virtual_key::kEscape, Target::Window)},
        {"a click that a program posts", kSearching, message(Kind::Click, Target::Button), Drops},
        {"any other message", kSearching, message(Kind::Other, Target::Other)},
    });
}

TEST(Verdict, KeepsOfTheEventsOfASearchWhatReplacesItAndWhatCloses) {
    Situation opening = kSearching;
    opening.opening = true;
    expectVerdicts({
        {"another event", kSearching, event(Drop), Drops},
        {"a newer search", kSearching, event(Restart), Restarts},
        {"in another directory", kSearching, event(Reopen), Restarts},
        {"of another window", kSearching, event(Restart, &other), Drops},
        {"the frame of the window that searches", kSearching, close(&window), EndsProgram},
        {"that of another window waits", kSearching, close(&other)},
        {"without a search", kHandling, event(Drop)},
        {"Enter in the tree", with(kSearching, kFresh), command(true, Reopen)},
        {"the same without a search", with(kHandling, kFresh), command(true, Reopen), Drops},
        {"in another window", with(kSearching, kFresh), command(true, Reopen, &other), Drops},
    });
    // What is typed takes no drive back.
    for (const auto& [begun, wish, goesOn] : {std::tuple(kSearching, Wish::None, true),
                                              {kSearching, Wish::Restart, false},
                                              {kSearching, Wish::Stop, false},
                                              {opening, Wish::Restart, true},
                                              {opening, Wish::Reopen, false},
                                              {opening, Wish::Stop, false}}) {
        Situation situation = begun;
        situation.wish = wish;
        EXPECT_EQ(searchGoesOn(situation), goesOn) << static_cast<int>(wish);
    }
}

TEST(Verdict, AsksHalfAMinuteAfterTheFrameWhetherToWaitForACall) {
    Situation closing = kCallOut;
    closing.closeAsked = 1000;
    EXPECT_FALSE(callIsOverdue(closing, 30'999));
    EXPECT_TRUE(callIsOverdue(closing, 31'000));
    closing.questions = 1;
    EXPECT_FALSE(callIsOverdue(closing, 31'000)) << "something is asked already";
    closing.questions = closing.callsOut = 0;
    EXPECT_FALSE(callIsOverdue(closing, 31'000)) << "it has come back";
    EXPECT_FALSE(callIsOverdue(kCallOut, 1'000'000));
}

TEST(Verdict, ShowsByThePointerWhoWaits) {
    EXPECT_EQ(pointerIn(kAtRest), Pointer::Arrow);
    EXPECT_EQ(pointerIn(kHandling), Pointer::Wait);
    EXPECT_EQ(pointerIn(kSearching), Pointer::ArrowAtWork);
    EXPECT_EQ(pointerIn(kBoxDuringCall), Pointer::Arrow);
}
