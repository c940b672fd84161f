#pragma once

#include <windows.h>

#include "input/notifications.h"

ControlClass classOf(HWND control);

/// Whether the control is visible and enabled.
bool canBeUsed(HWND control);

/// The control of a window that `part` belongs to: itself, or the drop-down box whose field or list
/// it is; null for none.
HWND controlHolding(HWND window, HWND part);

/// Whether it is a button that Enter presses while it has the focus.
bool isPushButton(HWND control);

/// Moves the focus to a control of this window, as the Tab key does: the default button follows,
/// and the text of a field is selected.
void focusOn(HWND window, HWND control);

/// The first one that the Tab key reaches.
HWND firstControl(HWND window);

/// Moves the focus away from a control that was disabled or hidden: to `home` if that can be used,
/// otherwise to the first control.
void keepKeyboard(HWND window, HWND home);

/// Shows where the focus is, which Windows hides as long as only the mouse is used.
void showFocusCues(HWND window);
