#pragma once

#include <cstdint>

/// What time it is.
class Clock {
 public:
    virtual ~Clock() = default;
    /// Seconds since the beginning of 1970, universal time.
    virtual std::int64_t now() const = 0;
};
