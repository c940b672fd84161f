#include "input/event_gate.h"

#include <new>

#include "fakes/fake_services.h"
#include "unit/unit_test.h"

struct FakeKeeper : GateKeeper {
    explicit FakeKeeper(const Judge& theJudge) : judge(theJudge) {}
    const Judge& judge;
    Pointer pointer = Pointer::Arrow;
    std::vector<int> quits;
    void showPointer() override { pointer = pointerIn(judge.situation()); }
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
    std::map<int, DuringSearch> searching;  ///< the controls that ask for another search
    std::vector<int> raised;
    DuringSearch duringSearch(int controlId, Event) const override {
        return searching.contains(controlId) ? searching.at(controlId) : DuringSearch::Drop;
    }
    void raise(int controlId, Event) override {
        raised.push_back(controlId);
        if (handlers.contains(controlId)) handlers[controlId]();
    }
};

struct EventGateTest : testing::Test {
    Judge judge{{}, [] { return Moment{1000}; }};
    FakeKeeper keeper{judge};
    FakeMessageBoxes boxes;
    EventGate gate{keeper, boxes, judge};
    FakeSource source;
    FakeSink sink;

    void click(int id) { gate.deliver(sink, id, Event::Click, source); }
    void expectEnd(int code) {
        EXPECT_TRUE(gate.ended());
        EXPECT_EQ(gate.exitCode(), code);
        EXPECT_EQ(keeper.quits, std::vector{code});
    }
};

TEST_F(EventGateTest, RunsOneHandlerAtATimeUnderTheHourglass) {
    sink.handlers[1] = [&] {
        EXPECT_EQ(keeper.pointer, Pointer::Wait);
        for (const int id : {2, 3}) click(id);
        EXPECT_EQ(sink.raised, std::vector{1});
    };
    click(1);
    EXPECT_EQ(sink.raised, (std::vector{1, 2, 3}));
    EXPECT_EQ(keeper.pointer, Pointer::Arrow);
}

// However often a newer search is asked for, it is made once; one Escape ends them all.
TEST_F(EventGateTest, MakesANewerSearchOnceAndNoneThatWasStopped) {
    sink.searching = {{3, DuringSearch::Restart}, {4, DuringSearch::Reopen}};
    const Deed escape{.kind = Deed::Kind::Key, .time = 1000, .key = virtual_key::kEscape};
    std::function<void()> meanwhile;
    sink.handlers[1] = [&] {
        judge.searchBegins(sink, SearchKind::Documents);
        meanwhile();
        judge.searchEnds();
    };
    const auto handledAfterSearch = [&](const std::function<void()>& user) {
        meanwhile = user;
        sink.raised.clear();
        click(1);
        return sink.raised;
    };
    const auto typeAndChoose = [&] {
        for (const int id : {2, 3, 3, 4, 3}) click(id);
    };
    const auto stop = [&] { judge.take(escape); };
    EXPECT_EQ(handledAfterSearch(typeAndChoose), (std::vector{1, 3, 4}));
    EXPECT_EQ(handledAfterSearch([&] { typeAndChoose(), stop(); }), std::vector{1});
    EXPECT_EQ(handledAfterSearch([&] { click(3), stop(), click(4); }), (std::vector{1, 4}));
    FakeSink another;
    const auto close = [&](FakeSink& of) { gate.deliver(of, kTheWindow, Event::Close, source); };
    EXPECT_EQ(handledAfterSearch([&] { close(another); }), std::vector{1});
    EXPECT_EQ(another.raised, std::vector{kTheWindow});
    handledAfterSearch([&] { close(sink), judge.searchGoesOn(); });
    expectEnd(0);
}

TEST_F(EventGateTest, DropsWaitingEventsThatTheUserCouldNotCauseAnyMore) {
    const std::function<void()> meanwhile[] = {[&] { source.usable = false; },
                                               [&] { source.shown = false; },
                                               [&] { gate.forget(source); }};
    for (const auto& change : meanwhile) {
        source = {};
        sink.raised.clear();
        sink.handlers[1] = [&] { click(2), change(); };
        click(1);
        EXPECT_EQ(sink.raised, std::vector{1});
    }
    // Hidden windows, too, are told that the Windows session ends.
    source.shown = false;
    gate.deliver(sink, kTheWindow, Event::Close, source);
    EXPECT_EQ(sink.raised, std::vector{1});
}

TEST(EventGateEnds, WithTheNumberOfWhateverIsThrown) {
    const std::tuple<std::function<void()>, Texts, int> cases[] = {
        {[] { throw ProgramEnd{}; }, {}, 0},
        {[] { throw errors::overflow(); }, {L"Erreur d'exécution '6' :\r\n"}, 6},
        {[] { throw std::bad_alloc(); }, {L"Erreur d'exécution '7' :\r\n"}, 7},
        {[] { throw 1; }, {L"Erreur d'exécution '51' :\r\n"}, 51},
    };
    for (const auto& [action, texts, code] : cases) {
        // A window procedure may fail outside any handler; and at times no box can be shown.
        for (int way = 0; way < 4; ++way) {
            Judge judge({}, [] { return Moment{}; });
            FakeKeeper keeper(judge);
            FakeMessageBoxes boxes;
            if (way % 2) boxes.whileShown = [] { throw std::bad_alloc(); };
            EventGate gate(keeper, boxes, judge);
            way < 2 ? gate.guard(action) : gate.run(action);
            Texts shown = boxes.takeTexts();
            for (std::wstring& text : shown) text.resize(text.find(L'\n') + 1);
            EXPECT_EQ(shown, way % 2 ? Texts() : texts) << code;
            EXPECT_EQ(gate.exitCode(), code);
            EXPECT_EQ(keeper.quits, std::vector{code});
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
    boxes.whileShown = [&] { click(3); };
    click(1);
    click(4);
    EXPECT_EQ(sink.raised, (std::vector{1, 2})) << "nothing is handled any more";
    expectEnd(51);
}
