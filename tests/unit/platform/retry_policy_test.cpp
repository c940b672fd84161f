#include "platform/retry_policy.h"

#include <gtest/gtest.h>
#include <vector>

namespace {

/// The waits of a call that is refused until the user is asked, when each answer takes 10 ms.
std::vector<unsigned> waits() {
    std::vector<unsigned> result;
    unsigned long long elapsed = 0;
    while (const auto wait = waitBeforeRetry(elapsed)) {
        result.push_back(*wait);
        elapsed += *wait + 10;
    }
    return result;
}

}  // namespace

TEST(RetryPolicy, RetriesAtGrowingIntervalsForTenSeconds) {
    const auto all = waits();
    EXPECT_EQ(std::vector(all.begin(), all.begin() + 8),
              (std::vector<unsigned>{0, 50, 70, 150, 310, 630, 1000, 1000}));
    EXPECT_EQ(all.back(), 1000U);
    EXPECT_TRUE(waitBeforeRetry(9'999));
    EXPECT_FALSE(waitBeforeRetry(10'000));
}
