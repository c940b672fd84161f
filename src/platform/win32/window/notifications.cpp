#include "platform/win32/window/notifications.h"

#include <commctrl.h>

namespace {

/// Whether the focus stays in the window: switching to another program doesn't leave a field.
bool focusStaysInWindow(HWND control) {
    HWND focus = GetFocus();
    return focus && GetAncestor(focus, GA_ROOT) == GetAncestor(control, GA_ROOT);
}

std::optional<Event> comboBoxEvent(HWND control, WORD code) {
    switch (code) {
        case CBN_SELCHANGE:
            return Event::Click;
        case CBN_EDITCHANGE:
            return Event::Change;
        case CBN_KILLFOCUS:
            if (focusStaysInWindow(control)) return Event::Validate;
            return std::nullopt;
        default:
            return std::nullopt;
    }
}

}  // namespace

ControlClass classOf(HWND control) {
    wchar_t name[20] = {};
    GetClassNameW(control, name, ARRAYSIZE(name));
    if (lstrcmpiW(name, L"Button") == 0) return ControlClass::Button;
    if (lstrcmpiW(name, L"ListBox") == 0) return ControlClass::ListBox;
    if (lstrcmpiW(name, L"ComboBox") == 0) return ControlClass::ComboBox;
    if (lstrcmpiW(name, L"Edit") == 0) return ControlClass::Edit;
    if (lstrcmpiW(name, WC_TABCONTROLW) == 0) return ControlClass::TabStrip;
    return ControlClass::Other;
}

std::optional<Event> eventOf(HWND control, WORD code) {
    switch (classOf(control)) {
        case ControlClass::Button:
            if (code == BN_CLICKED) return Event::Click;
            break;
        case ControlClass::ListBox:
            if (code == LBN_SELCHANGE) return Event::Click;
            if (code == LBN_DBLCLK) return Event::DoubleClick;
            break;
        case ControlClass::ComboBox:
            return comboBoxEvent(control, code);
        default:
            break;
    }
    return std::nullopt;
}
