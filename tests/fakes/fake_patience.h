#pragma once

#include <chrono>
#include <functional>
#include <thread>

#include "ports/search.h"

/// Waits without a window; goes on as long as it is told to.
struct FakePatience : SearchWatch {
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
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return goesOn();
    }
    void wake() override {}

 private:
    bool stopped_ = false;
};
