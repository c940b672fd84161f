#include "platform/retry_policy.h"

#include <algorithm>

std::optional<unsigned> waitBeforeRetry(unsigned long long elapsed) {
    constexpr unsigned long long kPatience = 10'000;
    constexpr unsigned long long kFirstWait = 50;
    constexpr unsigned long long kLongestWait = 1'000;
    if (elapsed >= kPatience) return std::nullopt;
    if (elapsed == 0) return 0;
    // As long as it has taken so far: the intervals double.
    return static_cast<unsigned>(std::clamp(elapsed, kFirstWait, kLongestWait));
}
