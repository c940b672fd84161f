#include "win32/window/window_place.h"

#include <algorithm>
#include <utility>

#include "win32/window/focus.h"
#include "win32/window/hints.h"
#include "win32/window/win_controls.h"

namespace {

HFONT fontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

Area areaOf(HWND control) {
    RECT area{};
    // A drop-down is sized together with its list.
    if (classOf(control) == ControlClass::ComboBox) {
        SendMessageW(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&area));
    } else {
        GetWindowRect(control, &area);
    }
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&area), 2);
    return areaOfRect(area);
}

Size clientSize(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return {area.right, area.bottom};
}

/// The client area that a dialog resource asks for, in pixels. The window may have a smaller one:
/// Windows cuts it off at the edge of the screen (DLGTEMPLATEEX).
Size templateClient(HWND window, int dialogId) {
    constexpr int kWidth = 11;  // in words
    HMODULE module = GetModuleHandleW(nullptr);
    const HRSRC resource = FindResourceW(module, MAKEINTRESOURCEW(dialogId), RT_DIALOG);
    const auto* words = static_cast<const short*>(LockResource(LoadResource(module, resource)));
    RECT area{0, 0, words[kWidth], words[kWidth + 1]};
    MapDialogRect(window, &area);
    return {area.right, area.bottom};
}

}  // namespace

WindowLayout::WindowLayout(HWND window, const WindowTemplate& source)
    : window_(window),
      layout_(templateClient(window, source.dialogId), averageCharacter(fontOf(window)),
              source.shrinks) {
    const auto& anchors = source.anchors;
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const auto anchor = std::ranges::find(anchors, GetDlgCtrlID(child), &Anchor::controlId);
        const bool anchored = anchor != anchors.end();
        controls_.push_back(child);
        layout_.add(areaOf(child), anchored ? anchor->across : Growth::Stay,
                    anchored ? anchor->down : Growth::Stay);
    }
}

void WindowLayout::measureBy(HFONT font) { layout_.measureBy(averageCharacter(font)); }

Size WindowLayout::withFrame(Size client) const {
    RECT area{0, 0, client.width, client.height};
    AdjustWindowRectExForDpi(&area, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)),
                             GetDpiForWindow(window_));
    return {area.right - area.left, area.bottom - area.top};
}

void WindowLayout::arrange() const {
    const std::vector<Area> areas = layout_.arranged(clientSize(window_));
    for (std::size_t i = 0; i < areas.size(); ++i) {
        const Area& area = areas[i];
        const KeptComboField kept(controls_[i]);
        SetWindowPos(controls_[i], nullptr, area.left, area.top, area.width(), area.height(),
                     SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}

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

WindowPlace::WindowPlace(HWND window, const WindowTemplate& source, HWND tips)
    : window_(window),
      headingId_(source.headingId),
      fixedPitchId_(source.fixedPitchId),
      tips_(tips),
      layout_(window, source) {}

Area WindowPlace::place() const {
    RECT area{};
    GetWindowRect(window_, &area);
    if (!IsIconic(window_) && !IsZoomed(window_)) return areaOfRect(area);
    WINDOWPLACEMENT placement{};
    placement.length = sizeof placement;
    GetWindowPlacement(window_, &placement);
    const RECT& normal = placement.rcNormalPosition;
    return placeOnScreen(areaOfRect(normal),
                         nearestMonitor(MonitorFromRect(&normal, MONITOR_DEFAULTTONEAREST)));
}

void WindowPlace::moveTo(const Area& place) {
    HMONITOR before = monitorOf(window_);
    putAt(window_, place);
    if (monitorOf(window_) == before) return;
    chooseFonts();
    layout_.arrange();
}

void WindowPlace::moveIntoSight() {
    if (IsIconic(window_) || IsZoomed(window_)) return;
    const Area whole = inSight(place(), workArea());
    if (whole != place()) moveTo(whole);
}

int WindowPlace::dpi() const { return dpiOf(window_); }

Area WindowPlace::workArea() const { return nearestMonitor(monitorOf(window_)).work; }

Size WindowPlace::smallestSize() const {
    return smaller(layout_.smallestWindow(), workArea().size());
}

void WindowPlace::takeTemplateSize() {
    chooseFonts();
    putAt(window_, areaAt(place().corner(), layout_.templateWindow()));
    layout_.arrange();
}

// The fonts first: they decide how small the window can be.
void WindowPlace::changeResolution(const RECT& suggested) {
    chooseFonts();
    putAt(window_, areaOfRect(suggested));
    layout_.arrange();
}

// After a change of resolution or monitor, or a move of the taskbar, Windows leaves a window as
// large as it was. A hidden one is checked when it is shown.
void WindowPlace::changeScreen() {
    if (!IsWindowVisible(window_)) return;
    chooseFonts();
    layout_.arrange();
    moveIntoSight();
}

/// The usual fonts, or, where even the smallest window would not fit on the screen, smaller ones,
/// as far as they can be read.
WindowFonts WindowPlace::fittingFonts() {
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

void WindowPlace::chooseFonts() {
    WindowFonts fonts = fittingFonts();
    giveFonts(fonts);
    fonts_ = std::move(fonts);
    icons_ = WindowIcons(window_, GetDpiForWindow(window_));
}

void WindowPlace::giveFonts(const WindowFonts& fonts) {
    for (HWND child = GetWindow(window_, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
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
