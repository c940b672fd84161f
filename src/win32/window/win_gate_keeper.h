#pragma once

#include "input/event_gate.h"
#include "input/long_work.h"
#include "win32/window/hourglass.h"
#include "win32/window/input_sieve.h"

class WinGateKeeper : public GateKeeper {
 public:
    /// Shown from the beginning of a handler to its end.
    void setHourglass(bool shown) override {
        Hourglass::set(shown);
        if (!shown && LongWork::takeDone()) InputSieve::workEnded();
    }
    void quit(int exitCode) override { PostQuitMessage(exitCode); }
};
