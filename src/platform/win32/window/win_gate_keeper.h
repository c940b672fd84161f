#pragma once

#include "platform/event_gate.h"
#include "platform/win32/window/hourglass.h"

class WinGateKeeper : public GateKeeper {
 public:
    void setHourglass(bool shown) override { Hourglass::set(shown); }
    void quit(int exitCode) override { PostQuitMessage(exitCode); }
};
