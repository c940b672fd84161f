#include "win32/window/win_taskbar_button.h"

namespace {

ComPtr<ITaskbarList3> makeTaskbar() {
    ComPtr<ITaskbarList3> taskbar;
    CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                     taskbar.putVoid());
    return taskbar && SUCCEEDED(taskbar->HrInit()) ? taskbar : ComPtr<ITaskbarList3>();
}

}  // namespace

WinTaskbarButton::WinTaskbarButton(HWND window) : window_(window) {
    // A program with more rights than the taskbar would not get its message.
    ChangeWindowMessageFilterEx(window, madeMessage(), MSGFLT_ALLOW, nullptr);
}

UINT WinTaskbarButton::madeMessage() {
    static const UINT message = RegisterWindowMessageW(L"TaskbarButtonCreated");
    return message;
}

void WinTaskbarButton::showProgress(int done, int total) {
    if (!taskbar_) taskbar_ = makeTaskbar();
    if (!taskbar_) return;
    taskbar_->SetProgressState(window_, total > 0 ? TBPF_NORMAL : TBPF_NOPROGRESS);
    if (total > 0) {
        taskbar_->SetProgressValue(window_, static_cast<ULONGLONG>(done),
                                   static_cast<ULONGLONG>(total));
    }
}
