// Where a window stands, how large it is and how large its letters are.

#include <utility>

#include "rules/placement.h"
#include "win32/window/areas.h"
#include "win32/window/combo_field.h"
#include "win32/window/control_class.h"
#include "win32/window/dialog_window.h"
#include "win32/window/tooltips.h"
#include "win32/window/win_controls.h"

namespace {

Monitor nearestMonitor(HMONITOR nearest) {
    MONITORINFO monitor{};
    monitor.cbSize = sizeof monitor;
    GetMonitorInfoW(nearest, &monitor);
    return {areaOfRect(monitor.rcMonitor), areaOfRect(monitor.rcWork)};
}

HMONITOR monitorOf(HWND window) { return MonitorFromWindow(window, MONITOR_DEFAULTTONEAREST); }

void putAt(HWND window, const Area& place) {
    SetWindowPos(window, nullptr, place.left, place.top, place.width(), place.height(),
                 SWP_NOZORDER | SWP_NOACTIVATE);
}

}  // namespace

Area DialogWindow::place() const {
    RECT area{};
    GetWindowRect(window_.get(), &area);
    if (!IsIconic(window_.get()) && !IsZoomed(window_.get())) return areaOfRect(area);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_.get(), &placement);
    const RECT& normal = placement.rcNormalPosition;
    return placeOnScreen(areaOfRect(normal),
                         nearestMonitor(MonitorFromRect(&normal, MONITOR_DEFAULTTONEAREST)));
}

void DialogWindow::moveTo(const Area& place) {
    HMONITOR before = monitorOf(window_.get());
    putAt(window_.get(), place);
    if (monitorOf(window_.get()) == before) return;
    chooseFonts();
    layout_.arrange();
}

void DialogWindow::standInSight() {
    if (IsIconic(window_.get()) || IsZoomed(window_.get())) return;
    const Area whole = inSight(place(), workArea());
    if (whole != place()) moveTo(whole);
}

int DialogWindow::dpi() const { return dpiOf(window_.get()); }

Area DialogWindow::workArea() const { return nearestMonitor(monitorOf(window_.get())).work; }

Size DialogWindow::smallestSize() const {
    return smaller(layout_.smallestWindow(), workArea().size());
}

void DialogWindow::takeTemplateSize() {
    putAt(window_.get(), areaAt(place().corner(), layout_.templateWindow()));
    layout_.arrange();
}

// The letters first: the window can't be made smaller than they ask for.
void DialogWindow::changeResolution(const RECT& suggested) {
    chooseFonts();
    putAt(window_.get(), areaOfRect(suggested));
    layout_.arrange();
}

// Another resolution, another monitor, a taskbar that was moved: Windows leaves a window as large
// as it was. One that is hidden is looked at when it is shown.
void DialogWindow::changeScreen() {
    if (!IsWindowVisible(window_.get())) return;
    chooseFonts();
    layout_.arrange();
    standInSight();
}

/// The usual letters; smaller ones where not even the smallest size would stand whole on the
/// screen, as far as they can be read.
WindowFonts DialogWindow::fittingFonts() {
    constexpr int kLeastPercent = 60;
    constexpr int kStep = 4;
    int percent = 100;
    WindowFonts fonts(dpi(), percent);
    layout_.measureBy(fonts.text());
    while (smallestSize() != layout_.smallestWindow() && percent > kLeastPercent) {
        percent -= kStep;
        fonts = WindowFonts(dpi(), percent);
        layout_.measureBy(fonts.text());
    }
    return fonts;
}

void DialogWindow::chooseFonts() {
    WindowFonts fonts = fittingFonts();
    giveFonts(fonts);
    fonts_ = std::move(fonts);
    icons_ = WindowIcons(window_.get(), GetDpiForWindow(window_.get()));
}

void DialogWindow::giveFonts(const WindowFonts& fonts) {
    for (HWND child = GetWindow(window_.get(), GW_CHILD); child;
         child = GetWindow(child, GW_HWNDNEXT)) {
        const int id = GetDlgCtrlID(child);
        HFONT font = fonts.text();
        if (headingId_ != 0 && id == headingId_) font = fonts.heading();
        if (fixedPitchId_ != 0 && id == fixedPitchId_) font = fonts.fixedPitch();
        const KeptComboField kept(child);
        SendMessageW(child, WM_SETFONT, reinterpret_cast<WPARAM>(font), TRUE);
        if (classOf(child) == ControlClass::ListBox) WinListBox(child).measureLines();
    }
    fitTooltips(tips_, fonts.text(), dpi());
}
