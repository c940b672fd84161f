#pragma once

#include <windows.h>

/// Ctrl+A: selects all lines of a list where several can be. False elsewhere.
bool selectAllLines(HWND list);

/// A letter typed in a list where one line can be selected goes to the next line with it, if that
/// one is indented: Windows finds the others itself. False for all other messages.
bool goToLetter(const MSG& message);
