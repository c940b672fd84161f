#include "win32/files/pool_workers.h"

#include <windows.h>

#include <memory>
#include <utility>

namespace {

using Job = std::function<void()>;

void CALLBACK run(PTP_CALLBACK_INSTANCE, void* job) {
    (*std::unique_ptr<Job>(static_cast<Job*>(job)))();
}

}  // namespace

bool PoolWorkers::start(std::function<void()> job) {
    TP_CALLBACK_ENVIRON environment;
    InitializeThreadpoolEnvironment(&environment);
    // A file server may take its time: the pool then makes another thread for the next job.
    SetThreadpoolCallbackRunsLong(&environment);
    auto kept = std::make_unique<Job>(std::move(job));
    if (!TrySubmitThreadpoolCallback(run, kept.get(), &environment)) return false;
    kept.release();
    return true;
}
