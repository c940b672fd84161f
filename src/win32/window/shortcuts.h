#pragma once

#include <vector>

#include "win32/window/handles.h"

/// The shortcuts of a window, as long as it lives: the accelerator resource of its dialog's id,
/// if there is one. Its ASCII entries are signs: Ctrl and the key that bears the sign on the layout
/// in use.
class WindowShortcuts {
 public:
    WindowShortcuts(HWND window, int dialogId);
    ~WindowShortcuts();
    WindowShortcuts(const WindowShortcuts&) = delete;
    WindowShortcuts& operator=(const WindowShortcuts&) = delete;

    /// Carries out a key that goes down; false when it is no shortcut.
    bool translate(MSG& message) const;

 private:
    HWND window_;
    UniqueShortcuts table_;
    std::vector<ACCEL> signs_;
};

/// Carries out a key message that is a shortcut in this window; false when it is none. Besides
/// the window's own, Ctrl+A selects all lines of a list.
bool translateShortcut(HWND window, MSG& message);
