// The system's thread pool as readers of directories.

#include "platform/win32/files/pool_workers.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>

#include "contract/machine.h"
#include "pickers/tree_walk.h"
#include "platform/search_patience.h"

namespace {

constexpr std::chrono::seconds kGenerous(60);

/// Waits without a window.
class EventPatience : public SearchPatience {
 public:
    bool serve() override { return true; }
    bool wait() override {
        WaitForSingleObject(woken_, 5);
        return true;
    }
    void wake() override { SetEvent(woken_); }

 private:
    HANDLE woken_ = CreateEventW(nullptr, FALSE, FALSE, nullptr);
};

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
    EXPECT_EQ(meeting->all.wait_for(kGenerous), std::future_status::ready);
}

TEST(PoolWorkers, ReadATreeAsTheMainThreadDoes) {
    const auto machine = makeMachine();
    for (int i = 0; i < 40; ++i) {
        const std::wstring directory =
            machine->directory() + L"\\" + std::wstring(1, static_cast<wchar_t>(L'a' + i % 4));
        machine->addDirectory(directory);
        machine->addDirectory(directory + L"\\" + std::to_wstring(i));
        machine->files().replaceText(directory + L"\\" + std::to_wstring(i) + L"\\x.SLDPRT", L"");
    }
    EventPatience patience;
    const auto walk = [&](Workers& workers) {
        std::vector<std::wstring> log;
        EXPECT_EQ(walkTree(
                      {machine->files(), workers, patience}, machine->directory(), true,
                      [](std::wstring_view) { return true; },
                      [&](const auto& directory, const auto& names) {
                          log.push_back(directory);
                          log.insert(log.end(), names.begin(), names.end());
                      }),
                  WalkEnd::Complete);
        return log;
    };
    NoWorkers alone;
    PoolWorkers pool;
    const auto expected = walk(alone);
    EXPECT_EQ(expected.size(), 1U + 4U + 40U + 40U);
    EXPECT_EQ(walk(pool), expected);
}
