#pragma once

#include <windows.h>

/// The wait cursor, for as long as it lives.
class Hourglass {
 public:
    Hourglass() : previous_(SetCursor(LoadCursorW(nullptr, IDC_WAIT))) { ++depth_; }
    ~Hourglass() {
        --depth_;
        SetCursor(previous_);
    }
    Hourglass(const Hourglass&) = delete;
    Hourglass& operator=(const Hourglass&) = delete;

    static bool shown() { return depth_ > 0; }

 private:
    HCURSOR previous_;
    inline static int depth_ = 0;
};
