#include "win32/process/raise_program.h"

namespace {

struct Search {
    DWORD process;
    HWND found = nullptr;  ///< disabled: only as long as no other is found
};

/// A window or box, and neither a tooltip nor a list that drops down.
bool isForUsers(HWND window) {
    return IsWindowVisible(window) &&
           (GetWindowLongW(window, GWL_STYLE) & WS_CAPTION) == WS_CAPTION &&
           !(GetWindowLongW(window, GWL_EXSTYLE) & WS_EX_TOOLWINDOW);
}

BOOL CALLBACK look(HWND window, LPARAM parameter) {
    auto& search = *reinterpret_cast<Search*>(parameter);
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    if (process != search.process || !isForUsers(window)) return TRUE;
    const bool enabled = IsWindowEnabled(window) != FALSE;
    if (enabled || !search.found) search.found = window;
    return !enabled;
}

}  // namespace

bool raiseProgram(DWORD process) {
    Search search{process};
    if (process != 0) EnumWindows(look, reinterpret_cast<LPARAM>(&search));
    if (!search.found) return false;
    AllowSetForegroundWindow(process);
    // Posted: the program may be waiting for an answer.
    if (IsIconic(search.found)) ShowWindowAsync(search.found, SW_RESTORE);
    // A box of a minimised window is hidden with it.
    HWND box = GetLastActivePopup(search.found);
    SetForegroundWindow(IsWindowVisible(box) ? box : search.found);
    return true;
}
