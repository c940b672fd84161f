#pragma once

#include <cstdint>

/// A time as the user's clocks and calendars show it.
struct LocalTime {
    int year, month, day;
    int hour, minute, second;
};

/// What time it is.
class Clock {
 public:
    virtual ~Clock() = default;
    /// Seconds since the beginning of 1970, universal time.
    virtual std::int64_t now() const = 0;
    /// Milliseconds since some moment, which nobody can set back.
    virtual std::int64_t ticks() const = 0;
    /// A time as `now` gives it, in the user's time zone.
    virtual LocalTime local(std::int64_t time) const = 0;
};
