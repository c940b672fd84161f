#pragma once

#include <windows.h>

#include <string>

namespace driver {

/// The system's resources that a process uses.
struct Resources {
    DWORD kernelHandles = 0;
    DWORD gdiObjects = 0;
    DWORD windows = 0;
    size_t memoryBytes = 0;

    std::string describe() const;
};

Resources resourcesOf(HANDLE process);

}  // namespace driver
