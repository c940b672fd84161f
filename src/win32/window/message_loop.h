#pragma once

#include <windows.h>

class Judge;

/// Serves the program's windows until the program ends. Returns the exit code.
int runMessageLoop(Judge& judge);

/// The same as without a judge, for the program's windows: their shortcuts and keys work, too.
bool handleWaitingMessages(Judge& judge, UINT first = 0, UINT last = 0);
