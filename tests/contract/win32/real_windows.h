#pragma once

#include "contract/contract_ids.h"
#include "unit/unit_test.h"
#include "win32/window/dialog_window.h"
#include "win32/window/own_windows.h"
#include "win32/window/win_gate_keeper.h"
#include "win32/window/win_message_boxes.h"

/// What makes the program's windows.
struct RealWindows {
    WinGateKeeper keeper;
    WinMessageBoxes boxes;
    EventGate gate{keeper, boxes};
    DialogFactory factory{gate};
};
