#pragma once

#include <windows.h>

/// Handles the messages that wait in a range (0, 0: all of them). The program's end stays queued.
void handleWaitingMessages(UINT first = 0, UINT last = 0);
