#include "platform/win32/process/win_clock.h"

#include <windows.h>

std::int64_t WinClock::now() const {
    FILETIME time{};
    GetSystemTimeAsFileTime(&time);
    // Steps of 100 ns since the beginning of 1601 (the FILETIME structure).
    constexpr std::int64_t kStepsPerSecond = 10'000'000;
    constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;
    const std::int64_t steps =
        static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return steps / kStepsPerSecond - kFrom1601To1970;
}
