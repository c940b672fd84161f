#include "platform/win32/control_layout.h"

#include "platform/win32/notifications.h"

namespace {

/// Where a control stands in its window; a drop-down together with the list that it drops.
RECT placeOf(HWND control, HWND window) {
    RECT place{};
    GetWindowRect(control, &place);
    if (classOf(control) == ControlClass::ComboBox) {
        SendMessageW(control, CB_GETDROPPEDCONTROLRECT, 0, reinterpret_cast<LPARAM>(&place));
    }
    MapWindowPoints(nullptr, window, reinterpret_cast<POINT*>(&place), 2);
    return place;
}

}  // namespace

void stretchControls(HWND window, const RECT& before) {
    RECT after{};
    GetClientRect(window, &after);
    for (HWND child = GetWindow(window, GW_CHILD); child; child = GetWindow(child, GW_HWNDNEXT)) {
        const RECT place = placeOf(child, window);
        const int left = MulDiv(place.left, after.right, before.right);
        const int top = MulDiv(place.top, after.bottom, before.bottom);
        const int right = MulDiv(place.right, after.right, before.right);
        const int bottom = MulDiv(place.bottom, after.bottom, before.bottom);
        SetWindowPos(child, nullptr, left, top, right - left, bottom - top,
                     SWP_NOZORDER | SWP_NOACTIVATE);
    }
}
