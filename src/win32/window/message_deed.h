#pragma once

#include <windows.h>

#include "input/judge.h"
#include "win32/process/handles.h"

// What the messages of mouse, pen, touch and keyboard mean, by their numbers.

/// Whether a mouse button goes down within a window's client area.
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

/// The same on a window's frame, where it is moved, sized, scrolled or closed.
constexpr bool isFramePress(UINT message) {
    return message == WM_NCLBUTTONDOWN || message == WM_NCLBUTTONDBLCLK ||
           message == WM_NCRBUTTONDOWN;
}

constexpr bool isPress(UINT message) { return isMousePress(message) || isFramePress(message); }

/// Whether a pen or a finger goes down. Windows makes a press of it if all messages about it reach
/// the window (the WM_POINTERDOWN message).
constexpr bool isTouch(UINT message) {
    return message == WM_POINTERDOWN || message == WM_NCPOINTERDOWN;
}

constexpr bool isRelease(UINT message) {
    return message == WM_LBUTTONUP || message == WM_NCLBUTTONUP || message == WM_RBUTTONUP ||
           message == WM_NCRBUTTONUP || message == WM_POINTERUP;
}

constexpr bool isKeyDown(UINT message) { return message == WM_KEYDOWN || message == WM_SYSKEYDOWN; }

constexpr bool isKeyUp(UINT message) { return message == WM_KEYUP || message == WM_SYSKEYUP; }

/// Wheels and gestures, which act at once.
constexpr bool isScroll(UINT message) {
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL || message == WM_POINTERWHEEL ||
           message == WM_TOUCH;
}

/// What a message that is taken from the queue stands for.
Deed deedOf(const MSG& message, const Judge& judge);

/// Whether the current message was sent by another program, so that nobody pressed anything.
inline bool isFromProgram() { return InSendMessageEx(nullptr) != ISMEX_NOSEND; }

/// What makes two presses a double click on this machine.
Judge::Limits doubleClickLimits();

/// Shows the judge every message that the thread takes from its queue, in whatever loop, message
/// boxes' included, and drops those that do not count. There is one at a time.
class InputSieve {
 public:
    explicit InputSieve(Judge& judge);
    ~InputSieve();
    InputSieve(const InputSieve&) = delete;
    InputSieve& operator=(const InputSieve&) = delete;

 private:
    static LRESULT CALLBACK onGetMessage(int code, WPARAM wParam, LPARAM lParam);

    // A hook procedure isn't told who set it.
    inline static Judge* hooked_ = nullptr;
    UniqueHook hook_;
};
