#include "win32/window/foreground.h"

#include "win32/window/handles.h"
#include "win32/window/own_windows.h"

namespace {

/// Stands in front while the program has nothing to show.
UniqueWindow placeholder;

/// A layered window is not drawn before it is given a look.
HWND makePlaceholder() {
    return CreateWindowExW(WS_EX_TOOLWINDOW | WS_EX_LAYERED, L"Static", nullptr, WS_POPUP, 0, 0, 1,
                           1, nullptr, nullptr, nullptr, nullptr);
}

}  // namespace

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
