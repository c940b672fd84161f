#pragma once

#include <windows.h>

/// Gives a window the shortcuts of its dialog: the accelerator resource of the same id, if any.
void setShortcuts(HWND window, int dialogId);

/// Carries out a key message that is a shortcut in this window; false when it is none. Besides
/// the window's own, Ctrl+A selects all lines of a list.
bool translateShortcut(HWND window, MSG& message);
