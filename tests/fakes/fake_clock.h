#pragma once

#include "ports/machine.h"

/// Stands still until a test moves it.
struct FakeClock : Clock {
    std::int64_t seconds = 1'763'745'605;
    std::int64_t milliseconds = 0;
    std::int64_t now() const override { return seconds; }
    std::int64_t ticks() const override { return milliseconds; }
    LocalTime local(std::int64_t time) const override {
        // The twenty-first of November, by a clock that is an hour ahead of the others.
        const auto second = static_cast<int>((time + 3600) % 86'400);
        return {2025, 11, 21, second / 3600, second / 60 % 60, second % 60};
    }
};
