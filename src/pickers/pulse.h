#pragma once

#include <chrono>

/// Lets something happen a few times per second at most.
class Pulse {
 public:
    bool due() {
        constexpr std::chrono::milliseconds kInterval(250);
        const auto now = std::chrono::steady_clock::now();
        if (now - last_ < kInterval) return false;
        last_ = now;
        return true;
    }

 private:
    std::chrono::steady_clock::time_point last_ = std::chrono::steady_clock::now();
};
