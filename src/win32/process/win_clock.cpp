#include "win32/process/win_clock.h"

#include <windows.h>

namespace {

// Steps of 100 ns since the beginning of 1601 (the FILETIME structure).
constexpr std::int64_t kStepsPerSecond = 10'000'000;
constexpr std::int64_t kFrom1601To1970 = 11'644'473'600;

}  // namespace

std::int64_t WinClock::now() const {
    FILETIME time{};
    GetSystemTimeAsFileTime(&time);
    const std::int64_t steps =
        static_cast<std::int64_t>(time.dwHighDateTime) << 32 | time.dwLowDateTime;
    return steps / kStepsPerSecond - kFrom1601To1970;
}

std::int64_t WinClock::ticks() const { return static_cast<std::int64_t>(GetTickCount64()); }

// By whether that day was in summer time, not by whether today is.
LocalTime WinClock::local(std::int64_t time) const {
    const std::int64_t steps = (time + kFrom1601To1970) * kStepsPerSecond;
    const FILETIME fileTime{static_cast<DWORD>(steps), static_cast<DWORD>(steps >> 32)};
    SYSTEMTIME universal{};
    SYSTEMTIME local{};
    FileTimeToSystemTime(&fileTime, &universal);
    SystemTimeToTzSpecificLocalTime(nullptr, &universal, &local);
    return {local.wYear, local.wMonth, local.wDay, local.wHour, local.wMinute, local.wSecond};
}
