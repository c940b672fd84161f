#include "platform/win32/window/shortcuts.h"

#include "platform/win32/window/control_class.h"

namespace {

constexpr wchar_t kProperty[] = L"Tarnwick.Shortcuts";

/// Keys held down repeat themselves; a command is meant once.
bool isFreshKey(const MSG& message) {
    const bool pressed = message.message == WM_KEYDOWN || message.message == WM_SYSKEYDOWN;
    const bool repeated = (HIWORD(message.lParam) & KF_REPEAT) != 0;
    return pressed && !repeated;
}

bool isSelectAll(const MSG& message) {
    return message.wParam == 'A' && GetKeyState(VK_CONTROL) < 0 && GetKeyState(VK_SHIFT) >= 0 &&
           GetKeyState(VK_MENU) >= 0;
}

bool selectAllLines(HWND list) {
    if (classOf(list) != ControlClass::ListBox) return false;
    if ((GetWindowLongW(list, GWL_STYLE) & LBS_EXTENDEDSEL) == 0) return false;
    SendMessageW(list, LB_SETSEL, TRUE, -1);
    SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
    return true;
}

}  // namespace

WindowShortcuts::WindowShortcuts(HWND window, int dialogId)
    : window_(window),
      table_(LoadAcceleratorsW(GetModuleHandleW(nullptr), MAKEINTRESOURCEW(dialogId))) {
    SetPropW(window, kProperty, table_.get());
}

WindowShortcuts::~WindowShortcuts() { RemovePropW(window_, kProperty); }

bool translateShortcut(HWND window, MSG& message) {
    if (!isFreshKey(message)) return false;
    if (isSelectAll(message) && selectAllLines(message.hwnd)) return true;
    const auto shortcuts = static_cast<HACCEL>(GetPropW(window, kProperty));
    return shortcuts && TranslateAcceleratorW(window, shortcuts, &message) != 0;
}
