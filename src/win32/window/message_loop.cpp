#include "win32/window/message_loop.h"

#include <windows.h>

#include "input/judge.h"
#include "win32/process/message_pump.h"
#include "win32/window/focus.h"
#include "win32/window/window_keys.h"

namespace {

const wchar_t* cursorOf(Pointer pointer) {
    switch (pointer) {
        case Pointer::Wait:
            return IDC_WAIT;
        case Pointer::ArrowAtWork:
            return IDC_APPSTARTING;
        default:
            return IDC_ARROW;
    }
}

/// Windows shows the focus after Tab, Alt and the arrows, but not after shortcuts.
bool usesKeyboard(const MSG& message) {
    return message.message == WM_KEYDOWN && message.wParam != VK_SHIFT &&
           message.wParam != VK_CONTROL;
}

void dispatch(MSG& message) {
    HWND window = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    if (window && usesKeyboard(message)) showFocusCues(window);
    if (window && translateShortcut(window, message)) return;
    if (window && goToLetter(message)) return;
    if (window && IsDialogMessageW(window, &message)) return;
    dispatchMessage(message);
}

void handle(MSG& message, Judge& judge) {
    dispatch(message);
    judge.messageHandled();
}

}  // namespace

void showPointer(const Judge& judge) {
    SetCursor(LoadCursorW(nullptr, cursorOf(pointerIn(judge.situation()))));
}

int runMessageLoop(Judge& judge) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) handle(message, judge);
    return static_cast<int>(message.wParam);
}

bool handleWaitingMessages(Judge& judge, UINT first, UINT last) {
    return handleWaitingMessages(first, last, [&](MSG& message) { handle(message, judge); });
}
