#pragma once

#include <windows.h>

#include <vector>

/// The windows of the program, hidden ones included, the one used last first.
const std::vector<HWND>& ownWindows();

/// A window was made, shown or activated.
void noteUsed(HWND window);
void noteGone(HWND window);

/// The visible window used last, `other` excepted; null when there is none.
HWND lastVisibleWindow(HWND other = nullptr);

/// Whose a box or a dialog of the system is to be: the active window's, or, while another program
/// is in front, the visible one's that was used last. Without an owner it would open behind.
HWND ownerOfDialogs();

/// To be called before a window is hidden or destroyed. If it is in front, another window of the
/// program comes forward, or, while there is none to be seen, one that nobody sees: else Windows
/// would give the foreground to another program, and the next window could not take it back.
void keepForeground(HWND leaving);

/// Brings a window of the program to the front.
void takeForeground(HWND window);
