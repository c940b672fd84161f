#pragma once

#include <windows.h>

// What the messages of mouse, pen, touch and keyboard mean, by their numbers.

/// A mouse button goes down within a window's client area.
constexpr bool isMousePress(UINT message) {
    switch (message) {
        case WM_LBUTTONDOWN:
        case WM_LBUTTONDBLCLK:
        case WM_RBUTTONDOWN:
        case WM_RBUTTONDBLCLK:
        case WM_MBUTTONDOWN:
        case WM_MBUTTONDBLCLK:
        case WM_XBUTTONDOWN:
        case WM_XBUTTONDBLCLK:
            return true;
        default:
            return false;
    }
}

/// On a window's frame, where it is moved, sized, scrolled or closed.
constexpr bool isFramePress(UINT message) {
    return message == WM_NCLBUTTONDOWN || message == WM_NCLBUTTONDBLCLK ||
           message == WM_NCRBUTTONDOWN || message == WM_NCPOINTERDOWN;
}

constexpr bool isPress(UINT message) {
    return isMousePress(message) || isFramePress(message) || message == WM_POINTERDOWN;
}

constexpr bool isRelease(UINT message) {
    return message == WM_LBUTTONUP || message == WM_NCLBUTTONUP || message == WM_RBUTTONUP ||
           message == WM_POINTERUP;
}

constexpr bool isKeyDown(UINT message) { return message == WM_KEYDOWN || message == WM_SYSKEYDOWN; }

constexpr bool isKeyUp(UINT message) { return message == WM_KEYUP || message == WM_SYSKEYUP; }

/// Wheels and gestures do their work at once.
constexpr bool isScroll(UINT message) {
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL || message == WM_POINTERWHEEL ||
           message == WM_TOUCH;
}
