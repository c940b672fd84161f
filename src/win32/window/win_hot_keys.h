#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <vector>

#include "ports/window.h"

/// The hot keys of a window, as long as it wants them. Their numbers are the ids of the buttons.
class WinHotKeys {
 public:
    explicit WinHotKeys(std::span<const HotKey> keys) : keys_(keys) {}
    ~WinHotKeys() { release(); }
    WinHotKeys(const WinHotKeys&) = delete;
    WinHotKeys& operator=(const WinHotKeys&) = delete;

    /// Gives the names of those that another program has taken: then the window has none.
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
