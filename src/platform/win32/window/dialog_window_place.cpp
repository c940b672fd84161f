// Where a window stands, in twips.

#include "platform/win32/window/dialog_window.h"
#include "platform/win32/window/within_reach.h"

namespace {

constexpr int kTwipsPerInch = 1440;

int toTwips(HWND window, int pixels) {
    return MulDiv(pixels, kTwipsPerInch, static_cast<int>(GetDpiForWindow(window)));
}

int toPixels(HWND window, int twips) {
    return MulDiv(twips, static_cast<int>(GetDpiForWindow(window)), kTwipsPerInch);
}

}  // namespace

POINT DialogWindow::restoredCorner() const {
    RECT rectangle{};
    GetWindowRect(window_, &rectangle);
    if (!IsIconic(window_) && !IsZoomed(window_)) return {rectangle.left, rectangle.top};
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    // A placement is relative to the work area.
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&placement.rcNormalPosition, MONITOR_DEFAULTTONEAREST),
                    &monitor);
    return {placement.rcNormalPosition.left + monitor.rcWork.left - monitor.rcMonitor.left,
            placement.rcNormalPosition.top + monitor.rcWork.top - monitor.rcMonitor.top};
}

int DialogWindow::top() const { return toTwips(window_, restoredCorner().y); }

int DialogWindow::left() const { return toTwips(window_, restoredCorner().x); }

void DialogWindow::placeCorner(int top, int left) const {
    SetWindowPos(window_, nullptr, toPixels(window_, left), toPixels(window_, top), 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogWindow::moveTo(int top, int left) {
    const UINT before = GetDpiForWindow(window_);
    placeCorner(top, left);
    // On a monitor of another resolution a twip is another length.
    if (GetDpiForWindow(window_) != before) placeCorner(top, left);
    bringWithinReach(window_);
}

void DialogWindow::resize(int width, int height) {
    SetWindowPos(window_, nullptr, 0, 0, toPixels(window_, width), toPixels(window_, height),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
