#pragma once

#include <chrono>
#include <condition_variable>
#include <functional>
#include <mutex>

#include "platform/search_patience.h"

/// Waits without a window; goes on as long as it is told to.
struct FakePatience : SearchPatience {
    std::function<bool()> goesOn = [] { return true; };

    bool serve() override { return goesOn(); }
    bool wait() override {
        std::unique_lock lock(mutex_);
        signal_.wait_for(lock, std::chrono::milliseconds(10), [&] { return woken_; });
        woken_ = false;
        return goesOn();
    }
    void wake() override {
        const std::scoped_lock lock(mutex_);
        woken_ = true;
        signal_.notify_one();
    }

 private:
    std::mutex mutex_;
    std::condition_variable signal_;
    bool woken_ = false;
};
