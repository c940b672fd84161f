#pragma once

#include <windows.h>

#include <string>
#include <vector>

namespace driver {

/// All top-level windows of a process, hidden ones included.
std::vector<HWND> topLevelWindows(DWORD processId);

/// The window's descendants at any depth, parents first.
std::vector<HWND> descendants(HWND window);

/// The descendant with this control id, or null.
HWND descendant(HWND window, int id);

std::string classOf(HWND window);

/// The text that the window itself answers, also for controls of other processes.
std::string textOf(HWND window);

/// Sends a message; throws if the other process does not answer in time. A window that is gone by
/// then answers 0.
LRESULT send(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// Posts a message without waiting, since it may open a modal box.
void post(HWND window, UINT message, WPARAM wParam = 0, LPARAM lParam = 0);

/// Where a window is on the screen.
RECT placeOf(HWND window);

/// Moves a window's top left corner.
void moveTo(HWND window, int left, int top);

/// The lines of a list box of another process.
std::vector<std::string> listLines(HWND list);

/// The indices of the selected lines of a list box, ascending.
std::vector<int> selectedLines(HWND list);

/// Selects exactly these lines of a list box (one at most if it allows no more), and notifies
/// its parent.
void selectLines(HWND list, const std::vector<int>& lines);

/// A readable description of a window and all that is in it, for the report of a failed test.
std::string describe(HWND window);

}  // namespace driver
