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
