#pragma once

#include <windows.h>

#include <utility>

/// The wait cursor over all windows of the program, except while they ask something.
class Hourglass {
 public:
    static bool shown() { return shown_; }

    /// Gives the state before.
    static bool set(bool shown) {
        SetCursor(LoadCursorW(nullptr, shown ? IDC_WAIT : IDC_ARROW));
        return std::exchange(shown_, shown);
    }

 private:
    inline static bool shown_ = false;
};

/// While it lives, the program waits for its user and not the user for the program.
class HourglassAside {
 public:
    HourglassAside() : before_(Hourglass::set(false)) {}
    ~HourglassAside() { Hourglass::set(before_); }
    HourglassAside(const HourglassAside&) = delete;
    HourglassAside& operator=(const HourglassAside&) = delete;

 private:
    bool before_;
};
