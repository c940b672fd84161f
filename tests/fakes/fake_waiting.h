#pragma once

#include <functional>
#include <thread>
#include <utility>
#include <vector>

#include "input/judge.h"
#include "ports/search.h"
#include "rules/patience.h"

/// Time that passes by waiting, and as the test says.
struct FakeWaiting : BusyWaiting {
    std::uint64_t time = 1'000'000;
    std::vector<unsigned> waits;
    unsigned wakesIn = 0;
    bool programEnded = false;
    bool senderWaits = false;
    Judge judge{{}, [this] { return time; }};

    std::uint64_t now() const override { return time; }
    void wait(unsigned milliseconds) override {
        waits.push_back(milliseconds);
        time += milliseconds;
    }
    void handleInput() override {}
    void wakeIn(unsigned milliseconds) override { wakesIn = milliseconds; }
    void endProgram() override { programEnded = true; }
    bool answerSender() override { return std::exchange(senderWaits, false); }
};

/// Waits without a window; goes on as long as it is told to.
struct FakeSearchWatch : SearchWatch {
    std::function<bool()> goesOn = [] { return true; };
    const EventSink* searching = nullptr;

    /// What the user does meanwhile, in `goesOn`, which then says false.
    bool stop() {
        stopped_ = true;
        return false;
    }

    void begin(const EventSink& window, SearchKind) override {
        searching = &window;
        stopped_ = false;
    }
    void end() override { searching = nullptr; }
    bool stopped() const override { return stopped_; }
    bool serve() override { return goesOn(); }
    bool wait() override {
        std::this_thread::yield();
        return goesOn();
    }
    void wake() override {}

 private:
    bool stopped_ = false;
};

/// There is no thread to be had, so that all is done at once; or there are threads which wait for a
/// server that does not answer.
struct FakeWorkers : Workers {
    bool hang = false;

    bool start(std::function<void()>) override { return hang; }
};
