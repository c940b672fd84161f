#include "platform/retry_policy.h"

#include <algorithm>

std::optional<unsigned> RetryPolicy::next(unsigned long long elapsed) {
    constexpr unsigned long long kPatience = 10'000;
    constexpr unsigned kFirstWait = 50;
    constexpr unsigned kLongestWait = 1'000;
    if (elapsed >= kPatience) return std::nullopt;
    const unsigned wait = wait_;
    wait_ = wait == 0 ? kFirstWait : std::min(wait * 2, kLongestWait);
    return wait;
}
