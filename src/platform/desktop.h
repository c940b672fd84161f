#pragma once

#include <cstdint>
#include <string>

/// The windows of other programs.
class Desktop {
 public:
    using WindowHandle = std::uintptr_t;

    virtual ~Desktop() = default;

    /// The top-level window with exactly this title, 0 when there is none
    /// (the FindWindowA function, the title in the process's ANSI code page).
    virtual WindowHandle findWindow(const std::wstring& title) = 0;

    /// Brings a window to the front; with 0 nothing happens (the SetForegroundWindow function).
    virtual void bringToFront(WindowHandle window) = 0;
};
