#pragma once

#include <windows.h>

#include "input/notifications.h"

ControlClass classOf(HWND control);

/// The control is to be seen and enabled.
bool canBeUsed(HWND control);

/// The control of a window that holds this one: itself, or the drop-down box of a field or a list;
/// null when none does.
HWND controlHolding(HWND window, HWND part);

/// A button that Enter presses while it has the focus.
bool isPushButton(HWND control);

/// Gives the keyboard to a control of this window, as the Tab key does: the default button follows,
/// and the text of a field is selected.
void focusOn(HWND window, HWND control);

/// A control that a handler disabled or hid no longer takes the keyboard: another one must, this
/// one if it can.
void keepKeyboard(HWND window, HWND home);

/// Shows where the focus is, which Windows hides as long as only the mouse is used.
void showFocusCues(HWND window);
