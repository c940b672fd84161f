#pragma once

#include <windows.h>

#include <shobjidl.h>

#include "platform/win32/com/com_ptr.h"

/// How far the work has come, on the taskbar button of a window. A shell that has no such thing
/// shows nothing.
class TaskbarProgress {
 public:
    /// Steps done of all; 0 of 0 removes it.
    void show(HWND window, int done, int total);

    /// To be called for every message: shows the progress once the shell has made the button.
    void onMessage(HWND window, UINT message);

 private:
    void tellShell(HWND window);

    ComPtr<ITaskbarList3> taskbar_;
    int done_ = 0;
    int total_ = 0;
};
