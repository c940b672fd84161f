#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "driver/resources.h"

namespace driver {

/// A process that we started. If it still runs when this object is destroyed, it is ended.
class Process {
 public:
    /// Its error output goes into a file, if one is named.
    Process(const std::wstring& program, const std::vector<std::wstring>& arguments,
            const std::wstring& directory, const std::wstring& errorFile = {});
    ~Process();
    Process(const Process&) = delete;
    Process& operator=(const Process&) = delete;

    DWORD id() const { return id_; }
    bool running() const;

    /// Throws TimedOut if the process does not end by itself.
    DWORD waitForExit() const;

    /// Waits as long as a person may take.
    void waitUntilClosed() const { WaitForSingleObject(handle_, INFINITE); }

    void kill();

    Resources resourcesInUse() const { return resourcesOf(handle_); }

 private:
    HANDLE handle_ = nullptr;
    DWORD id_ = 0;
};

}  // namespace driver
