#include "platform/win32/window/within_reach.h"

#include <algorithm>

namespace {

constexpr LONG kGrip = 120;  ///< pixels of a title bar that are enough to grab it

RECT titleBar(HWND window) {
    RECT area{};
    GetWindowRect(window, &area);
    const UINT dpi = GetDpiForWindow(window);
    area.bottom = area.top + GetSystemMetricsForDpi(SM_CYCAPTION, dpi) +
                  GetSystemMetricsForDpi(SM_CYSIZEFRAME, dpi);
    return area;
}

MONITORINFO nearestMonitor(const RECT& area) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(MonitorFromRect(&area, MONITOR_DEFAULTTONEAREST), &monitor);
    return monitor;
}

bool isWithinReach(const RECT& title, const RECT& monitor) {
    if (MonitorFromPoint({title.left, title.top}, MONITOR_DEFAULTTONULL)) return true;
    RECT seen{};
    if (!IntersectRect(&seen, &title, &monitor)) return false;
    return seen.right - seen.left >= kGrip &&
           seen.bottom - seen.top >= (title.bottom - title.top) / 2;
}

}  // namespace

void bringWithinReach(HWND window) {
    const RECT title = titleBar(window);
    const MONITORINFO monitor = nearestMonitor(title);
    if (isWithinReach(title, monitor.rcMonitor)) return;
    const RECT& work = monitor.rcWork;
    const LONG width = title.right - title.left;
    const LONG left = std::clamp(title.left, work.left + kGrip - width, work.right - kGrip);
    const LONG top = std::clamp(title.top, work.top, work.bottom - (title.bottom - title.top));
    SetWindowPos(window, nullptr, left, top, 0, 0, SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
}
