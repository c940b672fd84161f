#pragma once

#include <windows.h>

#include <functional>

/// Translates and dispatches a message.
void dispatchMessage(MSG& message);

/// Handles the waiting messages of a range (0, 0: all). False when WM_QUIT was among them, which
/// stays queued.
bool handleWaitingMessages(UINT first = 0, UINT last = 0,
                           const std::function<void(MSG&)>& handle = dispatchMessage);
