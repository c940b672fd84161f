#pragma once

#include <windows.h>

#include <string>

namespace endtoend {

/// What a process holds of the system.
struct Resources {
    DWORD kernelHandles = 0;
    DWORD gdiObjects = 0;
    DWORD userObjects = 0;
    size_t privateBytes = 0;

    std::string Describe() const;
};

Resources ResourcesOf(HANDLE process);

}  // namespace endtoend
