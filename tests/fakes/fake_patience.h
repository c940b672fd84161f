#pragma once

#include <chrono>
#include <functional>
#include <thread>

#include "ports/search_patience.h"

/// Waits without a window; goes on as long as it is told to.
struct FakePatience : SearchPatience {
    std::function<bool()> goesOn = [] { return true; };

    bool serve() override { return goesOn(); }
    bool wait() override {
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
        return goesOn();
    }
    void wake() override {}
};
