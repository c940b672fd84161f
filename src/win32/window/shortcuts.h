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
    /// The control that a key which goes down is a shortcut of; 0 when it is none.
    int controlOf(const MSG& message) const;

 private:
    HWND window_;
    UniqueShortcuts table_;
    std::vector<ACCEL> entries_;
};

/// The same in a window that may have none.
int shortcutIn(HWND window, const MSG& message);

/// Carries out a key message that is a shortcut in this window; false when it is none. Besides
/// the window's own, Ctrl+A selects all lines of a list.
bool translateShortcut(HWND window, MSG& message);
