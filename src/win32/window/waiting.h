#pragma once

#include <windows.h>

#include "input/judge.h"
#include "ports/search.h"
#include "rules/patience.h"
#include "win32/process/handles.h"

/// Serves the program's windows while the main thread searches: they are drawn, moved and sized,
/// answer other programs, and take what stops or replaces the search. The judge lets nothing else
/// pass.
///
/// Nothing is served in a search's first moments, so that a short one is a single step.
class WinSearchWatch : public SearchWatch {
 public:
    explicit WinSearchWatch(Judge& judge);

    void begin(const EventSink& window, SearchKind kind) override;
    void end() override;
    bool stopped() const override { return judge_.searchStopped(); }
    bool serve() override;
    bool wait() override;
    void wake() override { SetEvent(woken_.get()); }

 private:
    Judge& judge_;
    UniqueHandle woken_;  ///< an event that resets itself
    Moment served_ = 0;
};

class WinBusyWaiting : public BusyWaiting {
 public:
    explicit WinBusyWaiting(Judge& judge);

    std::uint64_t now() const override { return GetTickCount64(); }
    void wait(unsigned milliseconds) override;
    void handleInput() override;
    void wakeIn(unsigned milliseconds) override;
    bool answerSender() override { return ReplyMessage(0) != FALSE; }
    void endProgram() override { TerminateProcess(GetCurrentProcess(), 0); }

 private:
    Judge& judge_;
    Unique<PTP_TIMER, CloseThreadpoolTimer> timer_;
};
