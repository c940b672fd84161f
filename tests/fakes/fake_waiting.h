#pragma once

#include <vector>

#include "input/judge.h"
#include "rules/patience.h"

/// Time that passes by waiting, and as the test says.
struct FakeWaiting : BusyWaiting {
    std::uint64_t time = 1'000'000;
    std::vector<unsigned> waits;
    unsigned wakesIn = 0;
    bool programEnded = false;
    Judge judge{{}, [this] { return time; }};

    std::uint64_t now() const override { return time; }
    void wait(unsigned milliseconds) override {
        waits.push_back(milliseconds);
        time += milliseconds;
    }
    void handleInput() override {}
    void wakeIn(unsigned milliseconds) override { wakesIn = milliseconds; }
    void endProgram() override { programEnded = true; }
};
