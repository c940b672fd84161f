#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

#include "ports/window.h"
#include "win32/process/handles.h"

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

/// Ctrl+A: selects all lines of a list where several can be. False elsewhere.
bool selectAllLines(HWND list);

/// A letter typed in a list where one line can be selected goes to the next line with it, if that
/// one is indented: Windows finds the others itself. False for all other messages.
bool goToLetter(const MSG& message);

/// The hot keys of a window, as long as it wants them. Their numbers are the ids of the buttons.
class WinHotKeys {
 public:
    explicit WinHotKeys(std::span<const HotKey> keys) : keys_(keys) {}
    ~WinHotKeys() { release(); }
    WinHotKeys(const WinHotKeys&) = delete;
    WinHotKeys& operator=(const WinHotKeys&) = delete;

    /// Returns the names of those that another program has taken: then the window has none.
    std::vector<std::wstring> take(HWND window);
    void release();

    /// False for one that was given up while its message was on the way.
    bool has(int id) const;

    /// Whether a virtual key acts again though it was not let go: not every system heeds
    /// MOD_NOREPEAT. To be asked once a message.
    bool isHeld(UINT key);
    /// One of the window's timers has run off; that of a held key has the number of the key.
    void onTimer(UINT_PTR timer);

 private:
    bool take(const HotKey& key);

    std::span<const HotKey> keys_;
    HWND window_ = nullptr;
    std::vector<int> taken_;
    UINT_PTR held_ = 0;  ///< the key that is down since it acted
};
