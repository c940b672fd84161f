#pragma once

#include <windows.h>

#include <span>

#include "ports/window.h"

/// Adds items to a window's system menu, each group below a separator.
void addToSystemMenu(HWND window, std::span<const SystemMenuItem> items);

/// Whether a WM_SYSCOMMAND came from an item that was added; Windows' own are above those.
inline bool isAddedItem(WPARAM command) { return (command & 0xFFFF) < 0xF000; }

/// The item's id: the lowest four bits are Windows' own (the WM_SYSCOMMAND message), and the high
/// word is 1 when a key chose it (the TranslateAccelerator function).
inline int itemOf(WPARAM command) { return static_cast<int>(command & 0xFFF0); }

/// Whether the system menu has this item, and it can't be chosen.
bool isGreyed(HWND window, int itemId);

/// Shows the items as a menu of their own, as they are in the system menu. The one that is chosen
/// is posted as the system menu's would be.
void showShortcutMenu(HWND window, std::span<const SystemMenuItem> items, POINT place);

/// Where it is to appear for a WM_CONTEXTMENU: under the pointer, or, when a key asked for it, in
/// the control: by the line of a list that the keyboard is on, if that is in sight.
POINT shortcutMenuPlace(HWND control, LPARAM place);

/// Whether the press that asks for a menu was on the frame, caption included; never a key.
bool isOnFrame(HWND window, LPARAM place);
