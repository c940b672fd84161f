#pragma once

#include <windows.h>

#include "input/event_gate.h"
#include "win32/window/pointer.h"

class WinGateKeeper : public GateKeeper {
 public:
    explicit WinGateKeeper(const Judge& judge) : judge_(judge) {}

    void showPointer() override { ::showPointer(judge_); }
    void quit(int exitCode) override { PostQuitMessage(exitCode); }

 private:
    const Judge& judge_;
};
