#pragma once

#include "ports/clock.h"

class WinClock : public Clock {
 public:
    std::int64_t now() const override;
    std::int64_t ticks() const override;
    LocalTime local(std::int64_t time) const override;
};
