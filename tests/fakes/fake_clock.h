#pragma once

#include "platform/clock.h"

/// Stands still until a test moves it.
struct FakeClock : Clock {
    std::int64_t seconds = 1'763'745'605;
    std::int64_t now() const override { return seconds; }
};
