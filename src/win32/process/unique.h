#pragma once

#include <windows.h>

#include <memory>
#include <type_traits>

template <class Handle, auto release>
struct Releaser {
    using pointer = Handle;
    void operator()(Handle handle) const { release(handle); }
};

/// Owns a handle and gives it back to Windows by the function named.
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
