#pragma once

#include "win32/window/handles.h"

/// The program's icon on a window, and in its labels that show it, in the sizes of one resolution.
class WindowIcons {
 public:
    WindowIcons(HWND window, UINT dpi);

 private:
    UniqueIcon small_;
    UniqueIcon big_;
};
