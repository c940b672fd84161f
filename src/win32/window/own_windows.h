#pragma once

#include <windows.h>

#include <vector>

/// The windows of the program, hidden ones included, in order of their last use, latest first.
const std::vector<HWND>& ownWindows();

/// A window was made, shown or activated.
void noteUsed(HWND window);
void noteGone(HWND window);

/// The visible window used last, `other` excepted; null when there is none.
HWND lastVisibleWindow(HWND other = nullptr);

/// The owner for a box or a dialog of the system: the active window, or, while another program is
/// in front, the visible one used last. Without an owner it would open behind.
HWND ownerOfDialogs();

/// Call it before a window is hidden or destroyed. If that is in front, another window of the
/// program comes forward, or an invisible one when no other is visible: otherwise Windows would
/// give the foreground to another program, and our next window could not take it back.
void keepForeground(HWND leaving);

/// Brings a window of the program to the front.
void takeForeground(HWND window);
