#include "platform/win32/window/message_loop.h"

#include <windows.h>

#include "platform/win32/window/shortcuts.h"

int runMessageLoop() {
    MSG message;
    while (GetMessageW(&message, nullptr, 0, 0) > 0) {
        HWND window = message.hwnd ? GetAncestor(message.hwnd, GA_ROOT) : nullptr;
        if (window && translateShortcut(window, message)) continue;
        if (window && IsDialogMessageW(window, &message)) continue;
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return static_cast<int>(message.wParam);
}
