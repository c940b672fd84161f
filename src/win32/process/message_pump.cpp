#include "win32/process/message_pump.h"

bool handleWaitingMessages(UINT first, UINT last) {
    MSG message;
    while (PeekMessageW(&message, nullptr, first, last, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        TranslateMessage(&message);
        DispatchMessageW(&message);
    }
    return true;
}
