#pragma once

#include <windows.h>

/// The wait cursor over all windows of the program.
class Hourglass {
 public:
    void set(bool shown) {
        if (shown) {
            previous_ = SetCursor(LoadCursorW(nullptr, IDC_WAIT));
        } else {
            SetCursor(previous_);
        }
        shown_ = shown;
    }

    static bool shown() { return shown_; }

 private:
    HCURSOR previous_ = nullptr;
    inline static bool shown_ = false;
};
