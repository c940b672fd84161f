#include "input/event_gate.h"

#include <new>

#include "fakes/fake_message_boxes.h"
#include "input/searching.h"
#include "unit/unit_test.h"

namespace {

struct FakeKeeper : GateKeeper {
    bool hourglass = false;
    std::vector<int> quits;
    void setHourglass(bool shown) override { hourglass = shown; }
    void quit(int exitCode) override { quits.push_back(exitCode); }
};

struct FakeSource : EventSource {
    bool shown = true;
    bool usable = true;
    bool isShown() const override { return shown; }
    bool canUse(int) const override { return usable; }
};

/// Does what the test says for each control.
struct FakeSink : EventSink {
    std::map<int, std::function<void()>> handlers;
    int restarting = 0;  ///< the control that asks for another search
    std::vector<int> raised;
    bool restartsSearch(int controlId, Event) const override { return controlId == restarting; }
    void raise(int controlId, Event) override {
        raised.push_back(controlId);
        if (handlers.contains(controlId)) handlers[controlId]();
    }
};

struct EventGateTest : testing::Test {
    FakeKeeper keeper;
    FakeMessageBoxes boxes;
    EventGate gate{keeper, boxes};
    FakeSource source;
    FakeSink sink;

    void click(int id) { gate.deliver(sink, id, Event::Click, source); }
    void expectEnd(int code) {
        EXPECT_TRUE(gate.ended());
        EXPECT_EQ(gate.exitCode(), code);
        EXPECT_EQ(keeper.quits, std::vector{code});
    }
};

}  // namespace

TEST_F(EventGateTest, RunsOneHandlerAtATimeUnderTheHourglass) {
    bool busy = false;
    sink.handlers[1] = [&] {
        busy = keeper.hourglass;
        click(2);
        click(3);
        EXPECT_EQ(sink.raised, std::vector{1});
    };
    click(1);
    EXPECT_TRUE(busy);
    EXPECT_EQ(sink.raised, (std::vector{1, 2, 3}));
    EXPECT_FALSE(keeper.hourglass);
}

TEST_F(EventGateTest, WhileAHandlerSearchesDropsAllButANewerSearchAndTheEnd) {
    sink.restarting = 3;
    sink.handlers[1] = [&] {
        const Searching searching;
        click(2);
        EXPECT_TRUE(Searching::goesOn());
        Searching::stop();
        EXPECT_FALSE(Searching::goesOn());
        EXPECT_TRUE(searching.stopped());
        click(3);
        EXPECT_FALSE(Searching::goesOn());
        EXPECT_FALSE(searching.stopped());
    };
    click(1);
    EXPECT_EQ(sink.raised, (std::vector{1, 3}));
    sink.handlers[1] = [&] {
        const Searching searching;
        gate.deliver(sink, kTheWindow, Event::Close, source);
        click(3);
        Searching::goesOn();
    };
    click(1);
    EXPECT_EQ(sink.raised, (std::vector{1, 3, 1}));
    expectEnd(0);
}

TEST_F(EventGateTest, DropsWaitingEventsThatTheUserCouldNotCauseAnyMore) {
    sink.handlers[1] = [&] {
        click(2);
        source.usable = false;
    };
    sink.handlers[3] = [&] {
        click(4);
        source.usable = true;
        source.shown = false;
    };
    sink.handlers[5] = [&] {
        source.shown = true;
        click(6);
        gate.forget(source);
    };
    for (const int id : {1, 3, 5}) click(id);
    EXPECT_EQ(sink.raised, (std::vector{1, 3, 5}));
}

TEST_F(EventGateTest, TurnsARunTimeErrorIntoABoxAndTheEnd) {
    boxes.whileShown = [&] { click(2); };
    sink.handlers[1] = [] { throw errors::fileNotFound(L"c:\\a"); };
    click(1);
    EXPECT_EQ(boxes.shown.at(0).text, L"Erreur d'exécution '53' :\r\nFichier introuvable : c:\\a");
    expectEnd(53);
    click(3);
    EXPECT_EQ(sink.raised, std::vector{1});
}

TEST(EventGateEnds, WithTheNumberOfWhateverIsThrown) {
    const struct {
        std::function<void()> action;
        std::size_t boxes;
        int code;
    } cases[] = {
        {[] { throw ProgramEnd{}; }, 0, 0},
        {[] { throw errors::overflow(); }, 1, 6},
        {[] { throw std::bad_alloc(); }, 1, 7},
        {[] { throw 1; }, 1, 51},
    };
    for (const auto& c : cases) {
        // A window procedure may fail outside any handler; and at times no box can be shown.
        for (const bool outsideHandlers : {false, true}) {
            for (const bool noBox : {false, true}) {
                FakeKeeper keeper;
                FakeMessageBoxes boxes;
                if (noBox) boxes.whileShown = [] { throw std::bad_alloc(); };
                EventGate gate(keeper, boxes);
                outsideHandlers ? gate.guard(c.action) : gate.run(c.action);
                EXPECT_EQ(boxes.shown.size(), noBox ? 0 : c.boxes) << c.code;
                EXPECT_EQ(gate.exitCode(), c.code);
                EXPECT_EQ(keeper.quits, std::vector{c.code});
            }
        }
    }
}

// What fails meanwhile does not cut off the handler that runs.
TEST_F(EventGateTest, LetsTheHandlerThatRunsEndWhenAWindowFails) {
    sink.handlers[1] = [&] {
        gate.guard([] { throw errors::system(L"une police"); });
        EXPECT_FALSE(gate.ended());
        sink.raised.push_back(2);
    };
    click(1);
    EXPECT_EQ(sink.raised, (std::vector{1, 2}));
    expectEnd(51);
}
