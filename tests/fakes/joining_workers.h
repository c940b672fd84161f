#pragma once

#include <mutex>
#include <thread>
#include <vector>

#include "platform/workers.h"

/// A thread for each job; all are waited for in the end.
class JoiningWorkers : public Workers {
 public:
    bool start(std::function<void()> job) override {
        const std::scoped_lock lock(mutex_);
        if (++started_ % refusedEach == 0) return false;
        threads_.emplace_back(std::move(job));
        return true;
    }

    int refusedEach = 1 << 30;  ///< every so many starts there is no thread to be had

 private:
    std::mutex mutex_;
    int started_ = 0;
    std::vector<std::jthread> threads_;
};
