// Where a window stands, in twips.

#include "platform/win32/window/areas.h"
#include "platform/win32/window/dialog_window.h"
#include "platform/within_reach.h"

namespace {

Monitor nearestMonitor(const RECT& area) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST), &monitor);
    return {areaOfRect(monitor.rcMonitor), areaOfRect(monitor.rcWork)};
}

RECT titleBar(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    const UINT dpi = GetDpiForWindow(window);
    area.bottom = area.top + GetSystemMetricsForDpi(SM_CYCAPTION, dpi) +
                  GetSystemMetricsForDpi(SM_CYSIZEFRAME, dpi);
    return area;
}

Point reachableCorner(HWND window) {
    const RECT title = titleBar(window);
    const bool onAMonitor = MonitorFromPoint({title.left, title.top}, MONITOR_DEFAULTTONULL);
    return cornerWithinReach(areaOfRect(title), onAMonitor, nearestMonitor(title));
}

}  // namespace

Point DialogWindow::restoredCorner() const {
    RECT area{};
    GetWindowRect(window_.get(), &area);
    if (!IsIconic(window_.get()) && !IsZoomed(window_.get())) return {area.left, area.top};
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_.get(), &placement);
    const RECT& normal = placement.rcNormalPosition;
    return cornerOnScreen(areaOfRect(normal), nearestMonitor(normal));
}

int DialogWindow::top() const { return twipsOf(restoredCorner().y, dpiOf(window_.get())); }

int DialogWindow::left() const { return twipsOf(restoredCorner().x, dpiOf(window_.get())); }

void DialogWindow::placeInPixels(Point corner) const {
    SetWindowPos(window_.get(), nullptr, corner.x, corner.y, 0, 0,
                 SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}

void DialogWindow::placeCorner(int top, int left) const {
    const int dpi = dpiOf(window_.get());
    placeInPixels({pixelsOf(left, dpi), pixelsOf(top, dpi)});
}

void DialogWindow::moveTo(int top, int left) {
    const int before = dpiOf(window_.get());
    placeCorner(top, left);
    // On a monitor of another resolution a twip is another length.
    if (dpiOf(window_.get()) != before) placeCorner(top, left);
    placeInPixels(reachableCorner(window_.get()));
}

void DialogWindow::resize(int width, int height) {
    const int dpi = dpiOf(window_.get());
    SetWindowPos(window_.get(), nullptr, 0, 0, pixelsOf(width, dpi), pixelsOf(height, dpi),
                 SWP_NOMOVE | SWP_NOZORDER | SWP_NOACTIVATE);
}
