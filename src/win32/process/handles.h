#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

template <class Handle, auto release>
struct Releaser {
    using pointer = Handle;
    void operator()(Handle handle) const { release(handle); }
};

/// Owns a handle; `release` is the function that returns it to Windows.
template <class Handle, auto release>
using Unique = std::unique_ptr<std::remove_pointer_t<Handle>, Releaser<Handle, release>>;

inline void closeValidHandle(HANDLE handle) {
    if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
}

/// A kernel handle.
using UniqueHandle = Unique<HANDLE, closeValidHandle>;

inline bool isValid(const UniqueHandle& handle) {
    return handle.get() != INVALID_HANDLE_VALUE && handle.get() != nullptr;
}

using UniqueHook = Unique<HHOOK, UnhookWindowsHookEx>;

/// The process that a window belongs to.
inline DWORD processOf(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process;
}

using UniqueWindow = Unique<HWND, DestroyWindow>;
using UniqueFont = Unique<HFONT, DeleteObject>;
using UniqueIcon = Unique<HICON, DestroyIcon>;
using UniqueMenu = Unique<HMENU, DestroyMenu>;
using UniqueShortcuts = Unique<HACCEL, DestroyAcceleratorTable>;

/// The device context of a window (null: of the screen) with a font selected into it.
class FontContext {
 public:
    FontContext(HWND window, HFONT font)
        : window_(window), context_(GetDC(window)), previous_(SelectObject(context_, font)) {}
    ~FontContext() {
        SelectObject(context_, previous_);
        ReleaseDC(window_, context_);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

    HDC get() const { return context_; }

 private:
    HWND window_;
    HDC context_;
    HGDIOBJ previous_;
};
