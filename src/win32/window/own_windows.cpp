#include "win32/window/own_windows.h"

#include <algorithm>

#include "win32/process/handles.h"

namespace {

std::vector<HWND> windows;

/// An invisible window that stays in front while the program has nothing to show.
UniqueWindow placeholder;

/// A layered window is not drawn until its attributes are set.
HWND makePlaceholder() {
    return CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_LAYERED, L"Static", nullptr, WS_POPUP, 0, 0, 1,
                           1, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace

const std::vector<HWND>& ownWindows() { return windows; }

void noteUsed(HWND window) {
    const auto known = std::ranges::find(windows, window);
    if (known == windows.end()) {
        windows.insert(windows.begin(), window);
    } else {
        std::rotate(windows.begin(), known, known + 1);
    }
}

void noteGone(HWND window) { std::erase(windows, window); }

HWND lastVisibleWindow(HWND other) {
    const auto found = std::ranges::find_if(
        windows, [&](HWND window) { return window != other && IsWindowVisible(window); });
    return found == windows.end() ? nullptr : *found;
}

HWND ownerOfDialogs() {
    HWND active = GetActiveWindow();
    return active && IsWindowVisible(active) ? active : lastVisibleWindow();
}

void keepForeground(HWND leaving) {
    if (GetForegroundWindow() != leaving) return;
    HWND next = lastVisibleWindow(leaving);
    if (!next) {
        if (!placeholder) placeholder.reset(makePlaceholder());
        next = placeholder.get();
        ShowWindow(next, SW_SHOWNA);
    }
    SetForegroundWindow(next);
}

void takeForeground(HWND window) {
    SetForegroundWindow(window);
    ShowWindow(placeholder.get(), SW_HIDE);
}
