#include "pickers/in_parallel.h"

#include <memory>
#include <mutex>
#include <utility>

#include "ports/search_patience.h"
#include "ports/search_services.h"
#include "ports/workers.h"

namespace {

/// As many as keep a server busy that answers each after some milliseconds.
constexpr int kMostAtOnce = 8;

using DeskLock = std::unique_lock<std::mutex>;

/// What the main thread and the workers share. All but its beginning is used under the lock alone.
struct JobDesk : std::enable_shared_from_this<JobDesk> {
    std::size_t count;
    std::function<void(std::size_t)> job;

    std::mutex mutex = {};
    Workers* workers;          // These two are gone once the jobs
    SearchPatience* patience;  // are given up.
    std::size_t next = 0;
    std::size_t done = 0;
    int atWork = 0;
    std::optional<RuntimeError> error = {};
    bool ended = false;

    JobDesk(std::size_t theCount, std::function<void(std::size_t)> theJob,
            const SearchServices& services)
        : count(theCount),
          job(std::move(theJob)),
          workers(&services.workers),
          patience(&services.patience) {}

    bool isOver() const { return done == count || error; }

    void callWorkers() {
        for (auto wanted = count - next; wanted > 0 && atWork < kMostAtOnce; --wanted) {
            if (!workers->start([desk = shared_from_this()] { desk->work(); })) return;
            ++atWork;
        }
    }

    void work() noexcept {
        DeskLock lock(mutex);
        while (doNext(lock)) {
        }
        --atWork;
    }

    /// Does one job, unlocked meanwhile. False when there is none left.
    bool doNext(DeskLock& lock) noexcept {
        if (ended || error || next == count) return false;
        const std::size_t number = next++;
        lock.unlock();
        const auto raised = errorOf([&] { job(number); });
        lock.lock();
        if (!error) error = raised;
        ++done;
        if (!ended && isOver()) patience->wake();
        return true;
    }
};

/// Ends the jobs with the scope.
struct JobsEnd {
    JobDesk& desk;
    ~JobsEnd() {
        const DeskLock lock(desk.mutex);
        desk.ended = true;
    }
};

}  // namespace

bool inParallel(const SearchServices& services, std::size_t count,
                std::function<void(std::size_t)> job) {
    const auto desk = std::make_shared<JobDesk>(count, std::move(job), services);
    const JobsEnd end{*desk};
    DeskLock lock(desk->mutex);
    while (!desk->isOver()) {
        desk->callWorkers();
        const bool alone = desk->atWork == 0;
        if (alone) desk->doNext(lock);
        lock.unlock();
        if (!(alone ? services.patience.serve() : services.patience.wait())) return false;
        lock.lock();
    }
    if (desk->error) throw *desk->error;
    return true;
}
