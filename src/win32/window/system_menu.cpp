#include "win32/window/system_menu.h"

void addToSystemMenu(HWND window, std::span<const SystemMenuItem> items) {
    // Asking for it gives the window a menu of its own.
    if (items.empty()) return;
    HMENU menu = GetSystemMenu(window, FALSE);
    AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
    for (const SystemMenuItem& item : items) {
        AppendMenuW(menu, MF_STRING, static_cast<UINT_PTR>(item.id), item.text);
    }
}
