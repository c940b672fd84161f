#pragma once

#include "win32/process/unique.h"

using UniqueWindow = Unique<HWND, DestroyWindow>;
using UniqueFont = Unique<HFONT, DeleteObject>;
using UniqueIcon = Unique<HICON, DestroyIcon>;
using UniqueMenu = Unique<HMENU, DestroyMenu>;
using UniqueShortcuts = Unique<HACCEL, DestroyAcceleratorTable>;

/// The device context of a window (null: of the screen) with a font selected into it.
class FontContext {
 public:
    FontContext(HWND window, HFONT font)
        : window_(window), context_(GetDC(window)), previous_(SelectObject(context_, font)) {}
    ~FontContext() {
        SelectObject(context_, previous_);
        ReleaseDC(window_, context_);
    }
    FontContext(const FontContext&) = delete;
    FontContext& operator=(const FontContext&) = delete;

    HDC get() const { return context_; }

 private:
    HWND window_;
    HDC context_;
    HGDIOBJ previous_;
};
