#pragma once

#include <windows.h>

#include <utility>

#include "input/searching.h"

/// The wait cursor over all windows of the program, except while they ask something. While a search
/// goes on, which its user may stop, it is the arrow at work.
class Hourglass {
 public:
    static bool shown() { return shown_; }

    /// Gives the state before.
    static bool set(bool shown) {
        const bool before = std::exchange(shown_, shown);
        show();
        return before;
    }

    /// The pointer now becomes what it is to be.
    static void show() { SetCursor(LoadCursorW(nullptr, pointer())); }

 private:
    static const wchar_t* pointer() {
        if (!shown_) return IDC_ARROW;
        return Searching::any() ? IDC_APPSTARTING : IDC_WAIT;
    }

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
