#include "win32/window/list_keys.h"

#include "input/first_letter.h"
#include "win32/window/control_class.h"
#include "win32/window/win_controls.h"

namespace {

/// As when the user does it: what is done by messages is not told otherwise.
void tellSelection(HWND list) {
    SendMessageW(GetParent(list), WM_COMMAND, MAKEWPARAM(GetDlgCtrlID(list), LBN_SELCHANGE),
                 reinterpret_cast<LPARAM>(list));
}

}  // namespace

bool selectAllLines(HWND list) {
    if (classOf(list) != ControlClass::ListBox) return false;
    if (!WinListBox(list).severalSelectable()) return false;
    SendMessageW(list, LB_SETSEL, TRUE, -1);
    tellSelection(list);
    return true;
}

bool goToLetter(const MSG& message) {
    if (message.message != WM_CHAR || classOf(message.hwnd) != ControlClass::ListBox) return false;
    WinListBox list(message.hwnd);
    if (list.severalSelectable()) return false;
    const auto current = static_cast<int>(SendMessageW(message.hwnd, LB_GETCURSEL, 0, 0));
    const auto line = lineWithLetter(static_cast<wchar_t>(message.wParam), current, list.count(),
                                     [&](int i) { return list.line(i); });
    if (!line || list.line(*line).front() != L' ') return false;
    list.select(*line, true);
    tellSelection(message.hwnd);
    return true;
}
