#pragma once

#include <vector>

#include "rules/patience.h"

/// Time that passes by waiting, and as the test says.
struct FakeWaiting : BusyWaiting {
    std::uint64_t time = 1'000'000;
    std::vector<unsigned> waits;

    std::uint64_t now() const override { return time; }
    void wait(unsigned milliseconds) override {
        waits.push_back(milliseconds);
        time += milliseconds;
    }
};
