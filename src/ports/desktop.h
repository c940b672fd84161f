#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

/// Other programs and their windows.
class Desktop {
 public:
    using WindowHandle = std::uintptr_t;

    virtual ~Desktop() = default;

    /// The top-level window with exactly this title, 0 when there is none
    /// (the FindWindowA function, the title in the process's ANSI code page).
    virtual WindowHandle findWindow(const std::wstring& title) = 0;

    /// The uppermost window of another program with a title like this, 0 when there is none: a
    /// visible one at the top level that belongs to no other.
    virtual WindowHandle findWindow(const std::function<bool(const std::wstring&)>& isTitle) = 0;

    /// Gives a minimised window its size back; any other stays as it is.
    virtual void restore(WindowHandle window) = 0;

    /// Brings a window to the front; with 0 nothing happens (the SetForegroundWindow function).
    virtual void bringToFront(WindowHandle window) = 0;

    /// How many GDI objects the program of a window uses; nothing when that can't be known (the
    /// GetGuiResources function).
    virtual std::optional<int> gdiObjects(WindowHandle window) = 0;

    /// Has a document opened by its program; false when it can't be (the ShellExecuteEx function).
    virtual bool open(const std::wstring& document) = 0;
};
