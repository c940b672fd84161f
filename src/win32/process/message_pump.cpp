#include "win32/process/message_pump.h"

void dispatchMessage(MSG& message) {
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

bool handleWaitingMessages(UINT first, UINT last, const std::function<void(MSG&)>& handle) {
    MSG message;
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        handle(message);
    }
    return true;
}
