#pragma once

#include <windows.h>

#include <memory>

struct HandleCloser {
    using pointer = HANDLE;
    void operator()(HANDLE handle) const {
        if (handle != INVALID_HANDLE_VALUE) CloseHandle(handle);
    }
};

/// A kernel handle that closes itself.
using UniqueHandle = std::unique_ptr<HANDLE, HandleCloser>;

inline bool isValid(const UniqueHandle& handle) {
    return handle.get() != INVALID_HANDLE_VALUE && handle.get() != nullptr;
}
