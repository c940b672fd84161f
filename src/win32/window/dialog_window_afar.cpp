// What a window does while another program is in front.

#include <string>

#include "win32/window/dialog_window.h"
#include "win32/window/system_menu.h"

namespace {

bool isOurs(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

/// What the command asked on its way came to the front: the program that had the keyboard has it
/// again.
void giveKeyboardBack(HWND before) {
    if (!isOurs(before) && isOurs(GetForegroundWindow())) SetForegroundWindow(before);
}

/// One of the topmost windows that is never shown.
UniqueWindow hiddenTopmost() {
    return UniqueWindow(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"Static", nullptr,
                                        WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
}

}  // namespace

void DialogWindow::setMenuMark(int itemId, bool marked) {
    CheckMenuItem(GetSystemMenu(window_.get(), FALSE), static_cast<UINT>(itemId),
                  MF_BYCOMMAND | (marked ? MF_CHECKED : MF_UNCHECKED));
}

void DialogWindow::setMenuItemEnabled(int itemId, bool enabled) {
    EnableMenuItem(GetSystemMenu(window_.get(), FALSE), static_cast<UINT>(itemId),
                   MF_BYCOMMAND | (enabled ? MF_ENABLED : MF_GRAYED));
}

INT_PTR DialogWindow::onSystemCommand(WPARAM command) {
    if (isAddedItem(command)) {
        // Other programs may choose what the user can't.
        if (canUse(itemOf(command))) raise(itemOf(command), Event::Click);
        return TRUE;
    }
    return itemOf(command) == SC_MOUSEMENU &&
           judge().judge({.kind = Deed::Kind::OpenMenu}) == Verdict::Drops;
}

// Edit fields take the message for a menu of their own, and Windows' own menu belongs to the frame.
INT_PTR DialogWindow::onContextMenu(HWND control, LPARAM place) {
    HWND window = window_.get();
    if (menuItems_.empty() || isOnFrame(window, place)) return FALSE;
    if (!isAsideMeant(true)) return TRUE;
    showShortcutMenu(window, menuItems_, shortcutMenuPlace(control, place));
    return TRUE;
}

// Minimised it stays minimised.
void DialogWindow::setTopmost(bool topmost) {
    // Wine puts a window below its tooltips, and there it is topmost only if such a one follows it.
    const UniqueWindow follower = topmost ? hiddenTopmost() : nullptr;
    SetWindowPos(window_.get(), topmost ? HWND_TOPMOST : HWND_NOTOPMOST, 0, 0, 0, 0,
                 SWP_NOMOVE | SWP_NOSIZE | SWP_NOACTIVATE);
}

std::vector<std::wstring> DialogWindow::takeHotKeys() { return hotKeys_.take(window_.get()); }

void DialogWindow::releaseHotKeys() { hotKeys_.release(); }

void DialogWindow::onHotKey(int id, UINT key) {
    if (hotKeys_.has(id) && !hotKeys_.isHeld(key)) pressFromAfar(id);
}

void DialogWindow::pressFromAfar(int id) {
    if (isUnmeantCommand(id, Event::Click, Deed::Kind::HotKeyCommand)) {
        MessageBeep(MB_OK);
        return;
    }
    // While a menu of ours is open, it would take what is pressed during the command.
    EndMenu();
    HWND before = GetForegroundWindow();
    raise(id, Event::Click);
    giveKeyboardBack(before);
}
