#pragma once

#include <windows.h>

#include "rules/patience.h"
#include "win32/process/unique.h"

class WinBusyWaiting : public BusyWaiting {
 public:
    explicit WinBusyWaiting(Judge& judge);

    std::uint64_t now() const override { return GetTickCount64(); }
    void wait(unsigned milliseconds) override;
    void handleInput() override;
    void wakeIn(unsigned milliseconds) override;
    void endProgram() override { TerminateProcess(GetCurrentProcess(), 0); }

 private:
    Judge& judge_;
    DWORD thread_ = GetCurrentThreadId();
    Unique<PTP_TIMER, CloseThreadpoolTimer> timer_;
};
