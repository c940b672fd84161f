#include "win32/window/own_windows.h"

#include <algorithm>

namespace {

std::vector<HWND> windows;

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
