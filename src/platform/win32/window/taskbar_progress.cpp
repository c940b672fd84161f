#include "platform/win32/window/taskbar_progress.h"

namespace {

UINT buttonCreated() {
    static const UINT message = RegisterWindowMessageW(L"TaskbarButtonCreated");
    return message;
}

ComPtr<ITaskbarList3> makeTaskbar() {
    ComPtr<ITaskbarList3> taskbar;
    CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                     taskbar.putVoid());
    return taskbar && SUCCEEDED(taskbar->HrInit()) ? taskbar : ComPtr<ITaskbarList3>();
}

}  // namespace

void TaskbarProgress::show(HWND window, int done, int total) {
    if (done == done_ && total == total_) return;
    done_ = done;
    total_ = total;
    tellShell(window);
}

void TaskbarProgress::onMessage(HWND window, UINT message) {
    if (message == buttonCreated() && total_ > 0) tellShell(window);
}

void TaskbarProgress::tellShell(HWND window) {
    if (!taskbar_) taskbar_ = makeTaskbar();
    if (!taskbar_) return;
    taskbar_->SetProgressState(window, total_ > 0 ? TBPF_NORMAL : TBPF_NOPROGRESS);
    if (total_ > 0) {
        taskbar_->SetProgressValue(window, static_cast<ULONGLONG>(done_),
                                   static_cast<ULONGLONG>(total_));
    }
}
