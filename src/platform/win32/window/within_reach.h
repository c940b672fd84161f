#pragma once

#include <windows.h>

/// Brings a window that stands beside all monitors far enough onto the nearest one for its title
/// bar to be grabbed. A window whose corner lies on a monitor stays where it is.
void bringWithinReach(HWND window);
