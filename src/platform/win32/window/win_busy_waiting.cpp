#include "platform/win32/window/win_busy_waiting.h"

#include "platform/win32/process/message_pump.h"
#include "platform/win32/window/modal_box.h"

std::uint64_t WinBusyWaiting::now() const { return GetTickCount64(); }

void WinBusyWaiting::wait(unsigned milliseconds) {
    const std::uint64_t end = now() + milliseconds;
    for (std::uint64_t time = now(); time < end; time = now()) {
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - time), QS_ALLINPUT, 0);
        handleWaitingMessages();
    }
}

bool WinBusyWaiting::userGoesOn() {
    return showModalBox({.text = L"SolidWorks est occupé.",
                         .title = L"Tarnwick",
                         .style = MB_RETRYCANCEL | MB_ICONEXCLAMATION}) == IDRETRY;
}
