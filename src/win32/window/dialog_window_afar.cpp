// What reaches a window from beyond its controls: its system menu, hot keys and dropped files.

#include <string>
#include <utility>
#include <vector>

#include "win32/window/dialog_window.h"
#include "win32/window/system_menu.h"

namespace {

bool isOurs(HWND window) { return processOf(window) == GetCurrentProcessId(); }

/// Gives the keyboard back to the program from which a box of the command has taken it.
void giveKeyboardBack(HWND before) {
    if (!isOurs(before) && isOurs(GetForegroundWindow())) SetForegroundWindow(before);
}

/// A topmost window that is never shown.
UniqueWindow hiddenTopmost() {
    return UniqueWindow(CreateWindowExW(WS_EX_TOPMOST | WS_EX_TOOLWINDOW, L"Static", nullptr,
                                        WS_POPUP, 0, 0, 0, 0, nullptr, nullptr, nullptr, nullptr));
}

/// The full paths of what was dropped, of any length.
std::vector<std::wstring> pathsOf(HDROP files) {
    constexpr UINT kHowMany = 0xFFFFFFFF;
    std::vector<std::wstring> paths(DragQueryFileW(files, kHowMany, nullptr, 0));
    for (UINT i = 0; i < paths.size(); ++i) {
        // The length excludes the terminating zero, the size of the buffer includes it.
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
        // Other programs can choose items that are greyed for the user.
        if (canUse(itemOf(command))) raise(itemOf(command), Event::Click);
        return TRUE;
    }
    return itemOf(command) == SC_MOUSEMENU && isUnmeantMenu();
}

/// Whether a press that opens the system menu came too early.
bool DialogWindow::isUnmeantMenu() const {
    return judge().judge({.kind = Deed::Kind::OpenMenu}) == Verdict::Drops;
}

// Edit fields show a menu of their own instead, and the frame shows Windows' own.
INT_PTR DialogWindow::onContextMenu(HWND control, LPARAM place) {
    HWND window = window_.get();
    if (isOnFrame(window, place)) return isUnmeantMenu();
    if (menuItems_.empty()) return FALSE;
    if (!isAsideMeant(true)) return TRUE;
    showShortcutMenu(window, menuItems_, shortcutMenuPlace(control, place));
    return TRUE;
}

// A minimised window stays minimised.
void DialogWindow::setTopmost(bool topmost) {
    // Wine puts the window below its tooltips, where it is topmost only if another topmost window
    // follows.
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
    // An open menu of ours would take what is pressed during the command.
    EndMenu();
    HWND before = GetForegroundWindow();
    raise(id, Event::Click);
    giveKeyboardBack(before);
}

// Files dropped while a command runs or a box waits are ignored.
void DialogWindow::onDrop(HDROP files) {
    auto paths = pathsOf(files);
    DragFinish(files);
    if (!isAsideMeant(true) || !IsWindowEnabled(window_.get())) return;
    dropped_ = std::move(paths);
    // The program that they come from is still in front.
    takeForeground(window_.get());
    raise(kTheWindow, Event::Drop);
}
