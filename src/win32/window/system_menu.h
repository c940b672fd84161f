#pragma once

#include <windows.h>

#include <span>

#include "ports/window.h"

/// Adds items to a window's system menu, each group below a separator.
void addToSystemMenu(HWND window, std::span<const SystemMenuItem> items);

/// Whether a WM_SYSCOMMAND comes from an item that was added; Windows' own have higher numbers.
inline bool isAddedItem(WPARAM command) { return (command & 0xFFFF) < 0xF000; }

/// The item's id. Windows uses the lowest four bits (the WM_SYSCOMMAND message), and sets the high
/// word to 1 when a key chose the item (the TranslateAccelerator function).
inline int itemOf(WPARAM command) { return static_cast<int>(command & 0xFFF0); }

/// Whether the system menu has this item, but greyed.
bool isGreyed(HWND window, int itemId);

/// Shows the items as a shortcut menu, checked and greyed as in the system menu. The chosen one is
/// posted as the system menu would post it.
void showShortcutMenu(HWND window, std::span<const SystemMenuItem> items, POINT place);

/// Where to show it for a WM_CONTEXTMENU: under the pointer, or, when a key asked for it, in the
/// control: below the line of a list that has the focus, if that is in sight.
POINT shortcutMenuPlace(HWND control, LPARAM place);

/// Whether a press on the frame, caption included, asked for the menu. False for a key.
bool isOnFrame(HWND window, LPARAM place);
