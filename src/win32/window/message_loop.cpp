#include "win32/window/message_loop.h"

#include <windows.h>

#include "win32/window/focus.h"
#include "win32/window/input_sieve.h"
#include "win32/window/list_keys.h"
#include "win32/window/shortcuts.h"

namespace {

/// Windows itself takes Tab, Alt and the arrows for a use of the keyboard, but no shortcut.
bool usesKeyboard(const MSG& message) {
    return message.message == WM_KEYDOWN && message.wParam != VK_SHIFT &&
           message.wParam != VK_CONTROL;
}

void handle(MSG& message) {
    HWND window = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
    if (window && usesKeyboard(message)) showFocusCues(window);
    if (window && translateShortcut(window, message)) return;
    if (window && goToLetter(message)) return;
    if (window && IsDialogMessageW(window, &message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

}  // namespace

int runMessageLoop() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        handle(message);
        InputSieve::messageHandled();
    }
    return static_cast<int>(message.wParam);
}
