#pragma once

#include <windows.h>

#include "input/event_gate.h"

/// Makes the pointer show at once what the program is busy with.
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

/// As the function without a judge, and the shortcuts and keys of the program's windows work, too.
bool handleWaitingMessages(Judge& judge, UINT first = 0, UINT last = 0);
