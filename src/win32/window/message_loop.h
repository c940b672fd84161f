#pragma once

#include <windows.h>

#include "input/event_gate.h"

/// The pointer over the program's windows becomes now what the program is busy with.
void showPointer(const Judge& judge);

class WinGateKeeper : public GateKeeper {
 public:
    explicit WinGateKeeper(const Judge& judge) : judge_(judge) {}

    void showPointer() override { ::showPointer(judge_); }
    void quit(int exitCode) override { PostQuitMessage(exitCode); }

 private:
    const Judge& judge_;
};

/// Serves the program's windows until the program ends. Returns the exit code.
int runMessageLoop(Judge& judge);

/// The same as without a judge, for the program's windows: their shortcuts and keys work, too.
bool handleWaitingMessages(Judge& judge, UINT first = 0, UINT last = 0);
