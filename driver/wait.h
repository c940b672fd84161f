#pragma once

#include <windows.h>

#include <functional>
#include <stdexcept>
#include <string>

namespace driver {

// Long enough for the slowest machine: only a failing test waits so long.
constexpr DWORD kPatience = 60'000;     // milliseconds
constexpr DWORD kPollingInterval = 10;  // milliseconds

class TimedOut : public std::runtime_error {
 public:
    using std::runtime_error::runtime_error;
};

/// Polls `condition` until it holds; throws TimedOut naming `what` was waited for.
void waitFor(const std::string& what, const std::function<bool()>& condition);

/// Polls `read` until it returns `expected`; returns its last answer, for the test to compare.
template <class Value>
Value eventually(const Value& expected, const std::function<Value()>& read) {
    const ULONGLONG end = GetTickCount64() + kPatience;
    for (;;) {
        Value value = read();
        if (value == expected || GetTickCount64() >= end) return value;
        Sleep(kPollingInterval);
    }
}

}  // namespace driver
