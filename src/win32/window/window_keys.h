#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

#include "ports/window.h"
#include "win32/process/handles.h"

/// The shortcuts of a window: the accelerator resource with its dialog's id, if there is one. An
/// ASCII entry stands for Ctrl and the key that bears this sign on the keyboard layout in use.
class WindowShortcuts {
 public:
    WindowShortcuts(HWND window, int dialogId);
    ~WindowShortcuts();
    WindowShortcuts(const WindowShortcuts&) = delete;
    WindowShortcuts& operator=(const WindowShortcuts&) = delete;

    /// Carries out the shortcut that a key going down stands for; false when it is none.
    bool translate(MSG& message) const;
    /// The control whose shortcut a key going down is; 0 for none.
    int controlOf(const MSG& message) const;

 private:
    HWND window_;
    UniqueShortcuts table_;
    std::vector<ACCEL> entries_;
};

/// The same for a window that may have no shortcuts.
int shortcutIn(HWND window, const MSG& message);

/// Carries out a key message that is a shortcut in this window, or Ctrl+A, which selects all lines
/// of a list; false for any other.
bool translateShortcut(HWND window, MSG& message);

/// Selects all lines of a list in which several can be selected; false for any other control.
bool selectAllLines(HWND list);

/// Selects the next line that begins with a typed letter, in a list where one line can be selected
/// and if that line is indented: Windows finds the others itself. False for all other messages.
bool goToLetter(const MSG& message);

/// The hot keys of a window. Their numbers are the ids of its buttons.
class WinHotKeys {
 public:
    explicit WinHotKeys(std::span<const HotKey> keys) : keys_(keys) {}
    ~WinHotKeys() { release(); }
    WinHotKeys(const WinHotKeys&) = delete;
    WinHotKeys& operator=(const WinHotKeys&) = delete;

    /// Makes them active. Returns the names of those that another program has taken: then none is.
    std::vector<std::wstring> take(HWND window);
    void release();

    /// False for one that was released while its message was on the way.
    bool has(int id) const;

    /// Whether a hot key's message comes only from its being held, since not every system heeds
    /// MOD_NOREPEAT. Call it once for each message, with its virtual key.
    bool isHeld(UINT key);
    /// A timer of the window has fired; a held key's timer has the key's number.
    void onTimer(UINT_PTR timer);

 private:
    bool take(const HotKey& key);

    std::span<const HotKey> keys_;
    HWND window_ = nullptr;
    std::vector<int> taken_;
    UINT_PTR held_ = 0;  ///< the key that has been down since it acted
};
