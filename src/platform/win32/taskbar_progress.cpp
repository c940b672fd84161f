#include "platform/win32/taskbar_progress.h"

#include <shobjidl.h>

namespace {

UINT buttonCreated() {
    static const UINT message = RegisterWindowMessageW(L"TaskbarButtonCreated");
    return message;
}

}  // namespace

void TaskbarProgress::show(HWND window, int done, int total) {
    if (done == done_ && total == total_) return;
    done_ = done;
    total_ = total;
    tellShell(window);
}

void TaskbarProgress::onMessage(HWND window, UINT message) const {
    if (message == buttonCreated() && total_ > 0) tellShell(window);
}

void TaskbarProgress::tellShell(HWND window) const {
    ITaskbarList3* taskbar = nullptr;
    if (FAILED(CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER,
                                IID_PPV_ARGS(&taskbar)))) {
        return;
    }
    if (SUCCEEDED(taskbar->HrInit())) {
        taskbar->SetProgressState(window, total_ > 0 ? TBPF_NORMAL : TBPF_NOPROGRESS);
        if (total_ > 0) {
            taskbar->SetProgressValue(window, static_cast<ULONGLONG>(done_),
                                      static_cast<ULONGLONG>(total_));
        }
    }
    taskbar->Release();
}
