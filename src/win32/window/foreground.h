#pragma once

#include <windows.h>

/// To be called before a window is hidden or destroyed. If it is in front, another window of the
/// program comes forward, or, while there is none to be seen, one that nobody sees: else Windows
/// would give the foreground to another program, and the next window could not take it back.
void keepForeground(HWND leaving);

/// Brings a window of the program to the front.
void takeForeground(HWND window);
