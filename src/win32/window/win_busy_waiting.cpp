#include "win32/window/win_busy_waiting.h"

#include "win32/process/message_pump.h"

std::uint64_t WinBusyWaiting::now() const { return GetTickCount64(); }

void WinBusyWaiting::wait(unsigned milliseconds) {
    const std::uint64_t end = now() + milliseconds;
    for (std::uint64_t time = now(); time < end; time = now()) {
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - time), QS_ALLINPUT, 0);
        handleWaitingMessages();
    }
}
