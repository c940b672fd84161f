#pragma once

#include <windows.h>

#include <vector>

namespace driver {

/// Presses keys one after another as a person does, then releases them. Whichever window has the
/// keyboard gets them. `times`: how often the last one goes down, as when it is held.
void pressKeys(const std::vector<WORD>& keys, int times = 1);

/// Brings a window to the front, and waits until it is in front.
void bringForward(HWND window);

}  // namespace driver
