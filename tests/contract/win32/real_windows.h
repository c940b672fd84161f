#pragma once

#include "contract/contract_ids.h"
#include "platform/win32/window/dialog_window.h"
#include "platform/win32/window/own_windows.h"
#include "platform/win32/window/win_gate_keeper.h"
#include "platform/win32/window/win_message_boxes.h"
#include "unit/unit_test.h"

/// What makes the program's windows.
struct RealWindows {
    WinGateKeeper keeper;
    WinMessageBoxes boxes;
    EventGate gate{keeper, boxes};
    DialogFactory factory{gate};
};
