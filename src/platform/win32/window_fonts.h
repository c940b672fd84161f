#pragma once

#include <windows.h>

#include <memory>

struct FontDeleter {
    using pointer = HFONT;
    void operator()(HFONT font) const { DeleteObject(font); }
};
using UniqueFont = std::unique_ptr<HFONT, FontDeleter>;

/// A fixed-pitch font for lists, of the size the window's own font has.
UniqueFont fixedPitchFont(HWND window);

/// A bold font for a window's heading.
UniqueFont headingFont(HWND window);
