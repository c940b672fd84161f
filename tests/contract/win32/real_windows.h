#pragma once

#include <commctrl.h>

#include "contract/contract_ids.h"
#include "unit/unit_test.h"
#include "win32/process/message_pump.h"
#include "win32/window/dialog_window.h"
#include "win32/window/message_deed.h"
#include "win32/window/message_loop.h"
#include "win32/window/own_windows.h"
#include "win32/window/questions.h"

using RaisedEvents = std::vector<std::pair<int, Event>>;

/// Serves this thread's windows until something is so, or far too long.
inline bool eventually(const std::function<bool()>& isSo) {
    for (int i = 0; i < 1000 && !isSo(); ++i) {
        MsgWaitForMultipleObjectsEx(0, nullptr, 10, QS_ALLINPUT, 0);
        handleWaitingMessages();
    }
    return isSo();
}

/// What makes the program's windows.
struct RealWindows {
    RealWindows() {
        const INITCOMMONCONTROLSEX controls{sizeof controls, ICC_TAB_CLASSES | ICC_PROGRESS_CLASS};
        InitCommonControlsEx(&controls);
    }

    Judge judge{doubleClickLimits(), [] { return Moment{GetTickCount64()}; }};
    InputSieve sieve{judge};
    WinGateKeeper keeper{judge};
    WinMessageBoxes boxes{judge};
    EventGate gate{keeper, boxes, judge};
    DialogFactory factory{gate};
};

/// Checks on windows of the program; what these raise is noted.
struct RealWindowTest : testing::Test, RealWindows, EventSink {
    RaisedEvents raised;

    void raise(int id, Event event) override { raised.emplace_back(id, event); }
    static HWND dialog() { return ownWindows().front(); }
    static HWND item(int id) { return GetDlgItem(dialog(), id); }
};
