#pragma once

#include <windows.h>

/// Handles the messages that wait in a range (0, 0: all of them). False when the program's end was
/// among them, which stays queued.
bool handleWaitingMessages(UINT first = 0, UINT last = 0);
