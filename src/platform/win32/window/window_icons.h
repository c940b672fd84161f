#pragma once

#include <windows.h>

#include <memory>

struct IconDeleter {
    using pointer = HICON;
    void operator()(HICON icon) const { DestroyIcon(icon); }
};
using UniqueIcon = std::unique_ptr<HICON, IconDeleter>;

/// The program's icon on a window, in the sizes of one resolution.
class WindowIcons {
 public:
    WindowIcons(HWND window, UINT dpi);

 private:
    UniqueIcon small_;
    UniqueIcon big_;
};
