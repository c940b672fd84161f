#pragma once

#include <windows.h>

#include <vector>

namespace driver {

/// Presses keys as a person does, one after another, and lets go of them: whichever window has the
/// keyboard gets them. `times`: how often the last one goes down, as when it is held.
void pressKeys(const std::vector<WORD>& keys, int times = 1);

/// Brings a window to the front, and waits until it is there.
void bringForward(HWND window);

}  // namespace driver
