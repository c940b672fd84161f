#include "platform/retry_policy.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

constexpr unsigned long long kPatience = 10'000;

/// The waits of a call that is refused until the user is asked, when answers take no time.
std::vector<unsigned> waits(RetryPolicy& policy) {
    std::vector<unsigned> result;
    unsigned long long elapsed = 0;
    while (const auto wait = policy.next(elapsed)) {
        result.push_back(*wait);
        elapsed += *wait;
    }
    return result;
}

}  // namespace

TEST(RetryPolicy, RetriesAtGrowingIntervalsForTenSeconds) {
    RetryPolicy policy;
    const auto all = waits(policy);
    EXPECT_EQ(std::vector(all.begin(), all.begin() + 8),
              (std::vector<unsigned>{0, 50, 100, 200, 400, 800, 1000, 1000}));
    EXPECT_EQ(all.back(), 1000U);
    EXPECT_TRUE(RetryPolicy().next(kPatience - 1));
    EXPECT_FALSE(RetryPolicy().next(kPatience));
}
