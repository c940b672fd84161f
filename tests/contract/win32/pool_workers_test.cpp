// The system's thread pool as readers of directories.

#include <atomic>
#include <future>
#include <gtest/gtest.h>

#include "win32/files/win_files.h"

namespace {

/// Jobs that wait until eight of them have come.
struct Meeting {
    PoolWorkers workers;
    std::atomic<int> missing{8};
    std::promise<void> held;
    std::shared_future<void> all{held.get_future()};
};

void join(const std::shared_ptr<Meeting>& meeting, int jobs) {
    if (jobs == 0) return;
    EXPECT_TRUE(meeting->workers.start([meeting, jobs] {
        join(meeting, jobs - 1);
        if (--meeting->missing == 0) meeting->held.set_value();
        meeting->all.wait();
    }));
}

}  // namespace

// As readers do: each calls the next one when it has begun.
TEST(PoolWorkers, RunEightJobsAtOnce) {
    const auto meeting = std::make_shared<Meeting>();
    join(meeting, 8);
    EXPECT_EQ(meeting->all.wait_for(std::chrono::minutes(1)), std::future_status::ready);
}
