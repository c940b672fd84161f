// What a window does while another program is in front.

#include <string>
#include <utility>
#include <vector>

#include "win32/window/dialog_window.h"
#include "win32/window/system_menu.h"

namespace {

bool isOurs(HWND window) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    return process == GetCurrentProcessId();
}

/// A box that the command showed has taken the keyboard from another program, which gets it back.
void giveKeyboardBack(HWND before) {
    if (!isOurs(before) && isOurs(GetForegroundWindow())) SetForegroundWindow(before);
}

/// One of the topmost windows that is never shown.
UniqueWindow hiddenTopmost() {
    return UniqueWindow(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"Static", nullptr,
                                        WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
}

/// The full paths of what was dropped, of any length.
std::vector<std::wstring> pathsOf(HDROP files) {
    constexpr UINT kHowMany = 0xFFFFFFFF;
    std::vector<std::wstring> paths(DragQueryFileW(files, kHowMany, nullptr, 0));
    for (UINT i = 0; i < paths.size(); ++i) {
        // Its length does not count the zero at the end, the room asked for does.
        const UINT length = DragQueryFileW(files, i, nullptr, 0);
        paths[i].resize(length);
        DragQueryFileW(files, i, paths[i].data(), length + 1);
    }
    return paths;
}

}  // namespace

void DialogWindow::setMenuItemChecked(int itemId, bool checked) {
    CheckMenuItem(GetSystemMenu(window_.get(), FALSE), static_cast<UINT>(itemId),
                  MF_BYCOMMAND | (checked ? MF_CHECKED : MF_UNCHECKED));
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

// What is dropped while a command is at work, or while a box waits, is left where it was.
void DialogWindow::onDrop(HDROP files) {
    auto paths = pathsOf(files);
    DragFinish(files);
    if (!isAsideMeant(true) || !IsWindowEnabled(window_.get())) return;
    dropped_ = std::move(paths);
    // The program that they come from is still in front.
    takeForeground(window_.get());
    raise(kTheWindow, Event::Drop);
}
