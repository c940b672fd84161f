#pragma once

#include <windows.h>

#include <span>

#include "ports/window.h"

/// Adds items to a window's system menu, below a separator.
void addToSystemMenu(HWND window, std::span<const SystemMenuItem> items);

/// Whether a WM_SYSCOMMAND came from an item that was added; Windows' own are above those.
inline bool isAddedItem(WPARAM command) { return command < 0xF000; }

/// The item's id: the lowest four bits are Windows' own (the WM_SYSCOMMAND message).
inline int itemOf(WPARAM command) { return static_cast<int>(command & 0xFFF0); }
