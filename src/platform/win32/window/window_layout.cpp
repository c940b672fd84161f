#include "platform/win32/window/window_layout.h"

#include <algorithm>

#include "platform/win32/window/notifications.h"
#include "platform/win32/window/window_fonts.h"

namespace {

HFONT fontOf(HWND window) {
    return reinterpret_cast<HFONT>(SendMessageW(window, WM_GETFONT, 0, 0));
}

RECT areaOf(HWND control) {
    RECT area{};
    // A drop-down is sized together with its list.
    if (classOf(control) == ControlClass::ComboBox) {
        SendMessageW(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&area));
    } else {
        GetWindowRect(control, &area);
    }
    MapWindowPoints(nullptr, GetParent(control), reinterpret_cast<POINT*>(&area), 2);
    return area;
}

RECT clientArea(HWND window) {
    RECT area{};
    GetClientRect(window, &area);
    return area;
}

void grow(LONG& start, LONG& end, Growth growth, LONG gained) {
    if (growth == Growth::Move) start += gained;
    if (growth != Growth::Stay) end += gained;
}

}  // namespace

WindowLayout::WindowLayout(HWND window, std::span<const Anchor> anchors)
    : window_(window),
      client_(clientArea(window)),
      templateUnit_(averageCharacter(fontOf(window))),
      unit_(templateUnit_) {
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const auto anchor = std::ranges::find(anchors, GetDlgCtrlID(child), &Anchor::controlId);
        const bool anchored = anchor != anchors.end();
        places_.push_back({child, areaOf(child), anchored ? anchor->across : Growth::Stay,
                           anchored ? anchor->down : Growth::Stay});
    }
}

void WindowLayout::measureBy(HFONT font) { unit_ = averageCharacter(font); }

RECT WindowLayout::measured(const RECT& area) const {
    const auto across = [&](LONG x) { return MulDiv(x, unit_.cx, templateUnit_.cx); };
    const auto down = [&](LONG y) { return MulDiv(y, unit_.cy, templateUnit_.cy); };
    return {across(area.left), down(area.top), across(area.right), down(area.bottom)};
}

SIZE WindowLayout::smallestWindow() const {
    RECT area = measured(client_);
    AdjustWindowRectExForDpi(&area, static_cast<DWORD>(GetWindowLongW(window_, GWL_STYLE)), FALSE,
                             static_cast<DWORD>(GetWindowLongW(window_, GWL_EXSTYLE)),
                             GetDpiForWindow(window_));
    return {area.right - area.left, area.bottom - area.top};
}

void WindowLayout::arrange() const {
    const RECT smallest = measured(client_);
    const RECT client = clientArea(window_);
    const LONG gainedAcross = std::max(client.right - smallest.right, 0L);
    const LONG gainedDown = std::max(client.bottom - smallest.bottom, 0L);
    for (const Place& place : places_) {
        RECT area = measured(place.area);
        grow(area.left, area.right, place.across, gainedAcross);
        grow(area.top, area.bottom, place.down, gainedDown);
        SetWindowPos(place.control, nullptr, area.left, area.top, area.right - area.left,
                     area.bottom - area.top, SWP_NOZORDER | SWP_NOACTIVATE | SWP_NOREDRAW);
    }
    RedrawWindow(window_, nullptr, nullptr,
                 RDW_INVALIDATE | RDW_ERASE | RDW_FRAME | RDW_ALLCHILDREN);
}
