#pragma once

#include <windows.h>

/// Moves and sizes a window's controls in the proportion in which its inside has grown since it
/// measured `before`: a size in twips and a layout in dialog units, which hang on the font, agree.
void stretchControls(HWND window, const RECT& before);
