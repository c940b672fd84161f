#include "win32/window/system_menu.h"

#include "win32/process/handles.h"
#include "win32/window/focus.h"

namespace {

UINT stateOf(HWND window, int itemId) {
    return GetMenuState(GetSystemMenu(window, FALSE), static_cast<UINT>(itemId), MF_BYCOMMAND);
}

void append(HMENU menu, const SystemMenuItem& item, UINT state) {
    AppendMenuW(menu, MF_STRING | state, static_cast<UINT_PTR>(item.id), item.text);
}

void appendSeparator(HMENU menu) { AppendMenuW(menu, MF_SEPARATOR, 0, nullptr); }

UniqueMenu shortcutMenu(HWND window, std::span<const SystemMenuItem> items) {
    UniqueMenu menu(CreatePopupMenu());
    for (const SystemMenuItem& item : items) {
        if (item.startsGroup) appendSeparator(menu.get());
        append(menu.get(), item, stateOf(window, item.id) & (MF_CHECKED | MF_GRAYED));
    }
    return menu;
}

POINT pointOf(LPARAM place) {
    return {static_cast<short>(LOWORD(place)), static_cast<short>(HIWORD(place))};
}

/// Whether a key caused a WM_CONTEXTMENU: both coordinates are -1.
bool isByKey(LPARAM place) { return static_cast<DWORD>(place) == MAXDWORD; }

/// The lower left corner of the line with the focus, or the list's upper left one when that line is
/// out of sight.
POINT caretPlace(HWND list) {
    RECT line{};
    RECT client{};
    const LRESULT caret = SendMessageW(list, LB_GETCARETINDEX, 0, 0);
    SendMessageW(list, LB_GETITEMRECT, static_cast<WPARAM>(caret), reinterpret_cast<LPARAM>(&line));
    GetClientRect(list, &client);
    const bool inSight = line.bottom > 0 && line.bottom <= client.bottom;
    return {0, inSight ? line.bottom : 0};
}

}  // namespace

void addToSystemMenu(HWND window, std::span<const SystemMenuItem> items) {
    // Merely asking for the menu makes a copy of it for the window.
    if (items.empty()) return;
    HMENU menu = GetSystemMenu(window, FALSE);
    for (const SystemMenuItem& item : items) {
        if (item.startsGroup || &item == &items.front()) appendSeparator(menu);
        append(menu, item, 0);
    }
}

// Of an item that doesn't exist all bits are set.
bool isGreyed(HWND window, int itemId) {
    const UINT state = stateOf(window, itemId);
    return state != UINT_MAX && (state & MF_GRAYED) != 0;
}

void showShortcutMenu(HWND window, std::span<const SystemMenuItem> items, POINT place) {
    const UniqueMenu menu = shortcutMenu(window, items);
    const UINT side = GetSystemMetrics(SM_MENUDROPALIGNMENT) != 0 ? TPM_RIGHTALIGN : TPM_LEFTALIGN;
    const BOOL chosen = TrackPopupMenuEx(menu.get(), side | TPM_RIGHTBUTTON | TPM_RETURNCMD,
                                         place.x, place.y, window, nullptr);
    if (chosen != 0) PostMessageW(window, WM_SYSCOMMAND, static_cast<WPARAM>(chosen), 0);
}

POINT shortcutMenuPlace(HWND control, LPARAM place) {
    if (!isByKey(place)) return pointOf(place);
    HWND focus = GetFocus();
    if (!focus) focus = control;
    POINT corner = classOf(focus) == ControlClass::ListBox ? caretPlace(focus) : POINT{};
    ClientToScreen(focus, &corner);
    return corner;
}

bool isOnFrame(HWND window, LPARAM place) {
    if (isByKey(place)) return false;
    POINT point = pointOf(place);
    RECT client{};
    GetClientRect(window, &client);
    ScreenToClient(window, &point);
    return !PtInRect(&client, point);
}
