#include "win32/window/win_desktop.h"

#include <windows.h>

#include <shellapi.h>
#include <string>

#include "win32/process/handles.h"
#include "win32/window/win_controls.h"

namespace {

std::string inAnsiCodePage(const std::wstring& text) {
    const int size = WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()),
                                         nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<std::size_t>(size), '\0');
    WideCharToMultiByte(CP_ACP, 0, text.c_str(), static_cast<int>(text.size()), bytes.data(), size,
                        nullptr, nullptr);
    return bytes;
}

HWND handleOf(Desktop::WindowHandle window) { return reinterpret_cast<HWND>(window); }

struct TitleSearch {
    const std::function<bool(const std::wstring&)>& isTitle;
    HWND found = nullptr;
};

/// As Windows keeps it, so that a window that does not answer need not be asked.
std::wstring titleOf(HWND window) { return WinControl(window).text(); }

bool isOtherProgramsMainWindow(HWND window) {
    return processOf(window) != GetCurrentProcessId() && IsWindowVisible(window) &&
           !GetWindow(window, GW_OWNER);
}

// From the uppermost window down.
BOOL CALLBACK look(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<TitleSearch*>(parameter);
    if (isOtherProgramsMainWindow(window) && search.isTitle(titleOf(window))) search.found = window;
    return search.found == nullptr;
}

ComPtr<ITaskbarList3> makeTaskbar() {
    ComPtr<ITaskbarList3> taskbar;
    CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3,
                     taskbar.putVoid());
    return taskbar && SUCCEEDED(taskbar->HrInit()) ? taskbar : ComPtr<ITaskbarList3>();
}

/// Paused progress is yellow, progress with an error red.
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

Desktop::WindowHandle WinDesktop::findWindow(const std::wstring& title) {
    return reinterpret_cast<WindowHandle>(FindWindowA(nullptr, inAnsiCodePage(title).c_str()));
}

Desktop::WindowHandle WinDesktop::findWindow(
    const std::function<bool(const std::wstring&)>& isTitle) {
    TitleSearch search{isTitle};
    EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    return reinterpret_cast<WindowHandle>(search.found);
}

// Posted: the other program may be waiting for something.
void WinDesktop::restore(WindowHandle window) {
    if (IsIconic(handleOf(window))) ShowWindowAsync(handleOf(window), SW_RESTORE);
}

void WinDesktop::bringToFront(WindowHandle window) { SetForegroundWindow(handleOf(window)); }

// Windows returns 0 when it can't tell; a program with windows always has some.
std::optional<int> WinDesktop::gdiObjects(WindowHandle window) {
    const UniqueHandle program(
        OpenProcess(PROCESS_QUERY_LIMITED_INFORMATION, FALSE, processOf(handleOf(window))));
    const DWORD count = program ? GetGuiResources(program.get(), GR_GDIOBJECTS) : 0;
    return count > 0 ? std::optional(static_cast<int>(count)) : std::nullopt;
}

bool WinDesktop::open(const std::wstring& document) {
    SHELLEXECUTEINFOW info{};
    info.cbSize = sizeof info;
    // We report failures ourselves.
    info.fMask = SEE_MASK_FLAG_NO_UI;
    info.lpFile = document.c_str();
    info.nShow = SW_SHOWNORMAL;
    return ShellExecuteExW(&info) != FALSE;
}

WinTaskbarButton::WinTaskbarButton(HWND window) : window_(window) {
    // Otherwise a program with more rights than the taskbar would not get its message.
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
