#include "win32/window/win_taskbar_button.h"

namespace {

ComPtr<ITaskbarList3> makeTaskbar() {
    ComPtr<ITaskbarList3> taskbar;
    CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                     taskbar.putVoid());
    return taskbar && SUCCEEDED(taskbar->HrInit()) ? taskbar : ComPtr<ITaskbarList3>();
}

/// The colours of progress that is paused or has met an error.
TBPFLAG stateOf(const ButtonProgress& progress) {
    if (progress.total <= 0) return TBPF_NOPROGRESS;
    switch (progress.alert) {
        case Alert::Warning:
            return TBPF_PAUSED;
        case Alert::Refusal:
            return TBPF_ERROR;
        default:
            return TBPF_NORMAL;
    }
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

void WinTaskbarButton::show(const ButtonProgress& progress) {
    if (!taskbar_) taskbar_ = makeTaskbar();
    if (!taskbar_) return;
    taskbar_->SetProgressState(window_, stateOf(progress));
    if (progress.total > 0) {
        taskbar_->SetProgressValue(window_, static_cast<ULONGLONG>(progress.done),
                                   static_cast<ULONGLONG>(progress.total));
    }
}
