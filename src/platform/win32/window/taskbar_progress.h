#pragma once

#include <windows.h>

#include <memory>

struct ITaskbarList3;

/// How far the work has come, on the taskbar button of a window. A shell that has no such thing
/// shows nothing.
class TaskbarProgress {
 public:
    TaskbarProgress();
    ~TaskbarProgress();

    /// Steps done of all; 0 of 0 removes it.
    void show(HWND window, int done, int total);

    /// To be called for every message: shows the progress once the shell has made the button.
    void onMessage(HWND window, UINT message);

 private:
    struct Releaser {
        void operator()(ITaskbarList3* taskbar) const;
    };

    void tellShell(HWND window);

    std::unique_ptr<ITaskbarList3, Releaser> taskbar_;
    int done_ = 0;
    int total_ = 0;
};
