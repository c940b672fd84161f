#include "win32/window/message_loop.h"

#include "input/judge.h"
#include "win32/process/message_pump.h"
#include "win32/window/focus.h"
#include "win32/window/list_keys.h"
#include "win32/window/shortcuts.h"

namespace {

/// Windows itself takes Tab, Alt and the arrows for a use of the keyboard, but no shortcut.
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

int runMessageLoop(Judge& judge) {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) handle(message, judge);
    return static_cast<int>(message.wParam);
}

bool handleWaitingMessages(Judge& judge, UINT first, UINT last) {
    return handleWaitingMessages(first, last, [&](MSG& message) { handle(message, judge); });
}
