#include "win32/window/focus.h"

namespace {

/// The list that a drop-down box opens, a window of its own.
HWND listOf(HWND control) {
    COMBOBOXINFO parts{};
    parts.cbSize = sizeof parts;
    if (classOf(control) != ControlClass::ComboBox) return nullptr;
    return GetComboBoxInfo(control, &parts) ? parts.hwndList : nullptr;
}

}  // namespace

ControlClass classOf(HWND control) {
    wchar_t name[20] = {};
    GetClassNameW(control, name, ARRAYSIZE(name));
    return controlClass(name);
}

bool canBeUsed(HWND control) {
    return control && IsWindowVisible(control) && IsWindowEnabled(control);
}

HWND controlHolding(HWND window, HWND part) {
    HWND control = GetWindow(window, GW_CHILD);
    while (control && control != part && !IsChild(control, part) && listOf(control) != part) {
        control = GetWindow(control, GW_HWNDNEXT);
    }
    return control;
}

bool isPushButton(HWND control) {
    if (classOf(control) != ControlClass::Button) return false;
    const LONG kind = GetWindowLongW(control, GWL_STYLE) & BS_TYPEMASK;
    return kind == BS_PUSHBUTTON || kind == BS_DEFPUSHBUTTON;
}

void focusOn(HWND window, HWND control) {
    if (!control) return;
    SendMessageW(window, WM_NEXTDLGCTL, reinterpret_cast<WPARAM>(control), TRUE);
}

HWND firstControl(HWND window) {
    // Without a control to start from the search for the next one fails (GetNextDlgTabItem).
    HWND first = GetWindow(window, GW_CHILD);
    const bool stops = (GetWindowLongW(first, GWL_STYLE) & WS_TABSTOP) != 0;
    return stops && canBeUsed(first) ? first : GetNextDlgTabItem(window, first, FALSE);
}

void keepKeyboard(HWND window, HWND home) {
    if (canBeUsed(GetFocus())) return;
    focusOn(window, canBeUsed(home) ? home : firstControl(window));
}

void showFocusCues(HWND window) {
    SendMessageW(window, WM_CHANGEUISTATE, MAKEWPARAM(UIS_CLEAR, UISF_HIDEFOCUS | UISF_HIDEACCEL),
                 0);
}
