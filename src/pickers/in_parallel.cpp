#include "pickers/in_parallel.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <thread>
#include <utility>

#include "ports/search.h"

namespace {

/// How many workers keep the processors busy.
int processors() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostAtOnce);
}

/// What the main thread and the workers share.
struct JobDesk : std::enable_shared_from_this<JobDesk> {
    const std::size_t count;
    const std::function<void(std::size_t)> job;
    std::atomic<std::size_t> next = 0;
    std::atomic<std::size_t> done = 0;
    std::atomic<int> atWork = 0;
    std::atomic<bool> ended = false;

    std::mutex mutex = {};  // protects what follows
    SearchWatch* watch;     ///< no longer valid once the jobs have ended
    std::optional<RuntimeError> error = {};

    JobDesk(std::size_t theCount, std::function<void(std::size_t)> theJob, SearchWatch& theWatch)
        : count(theCount), job(std::move(theJob)), watch(&theWatch) {}

    void callWorkers(Workers& workers, int most) {
        const std::size_t begun = next;
        for (auto wanted = count - std::min(begun, count); wanted > 0; --wanted) {
            if (atWork >= most) return;
            ++atWork;
            if (workers.start([desk = shared_from_this()] { desk->work(); })) continue;
            --atWork;
            return;
        }
    }

    void work() noexcept {
        while (doNext()) {
        }
        --atWork;
    }

    /// Does one job. False when there is none left.
    bool doNext() noexcept {
        const std::size_t number = ended ? count : next++;
        if (number >= count) return false;
        const auto raised = errorOf([&] { job(number); });
        if (raised) fail(*raised);
        if (++done == count) end();
        return true;
    }

    void fail(const RuntimeError& raised) {
        {
            const std::scoped_lock lock(mutex);
            if (!error) error = raised;
        }
        end();
    }

    void end() {
        const std::scoped_lock lock(mutex);
        if (!ended.exchange(true)) watch->wake();
    }
};

/// Ends the jobs with its scope: afterwards nobody wakes the watch.
struct JobsEnd {
    JobDesk& desk;
    ~JobsEnd() {
        const std::scoped_lock lock(desk.mutex);
        desk.ended = true;
    }
};

}  // namespace

bool inParallel(const SearchServices& services, std::size_t count,
                std::function<void(std::size_t)> job) {
    if (count == 0) return true;
    const auto desk = std::make_shared<JobDesk>(count, std::move(job), services.watch);
    const JobsEnd end{*desk};
    // More workers than processors help only where jobs wait for a server: then few end during one
    // wait of the main thread's.
    constexpr std::size_t kFew = 100;
    int workers = processors();
    while (!desk->ended) {
        const std::size_t before = desk->done;
        desk->callWorkers(services.workers, workers);
        const bool alone = desk->atWork == 0 && desk->doNext();
        if (!(alone ? services.watch.serve() : services.watch.wait())) return false;
        if (desk->done - before < kFew) workers = kMostAtOnce;
    }
    const std::scoped_lock lock(desk->mutex);
    if (desk->error) throw *desk->error;
    return true;
}
