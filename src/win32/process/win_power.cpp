#include "win32/process/win_power.h"

#include <windows.h>

void WinPower::keepAwake(bool awake) {
    SetThreadExecutionState(awake ? ES_CONTINUOUS | ES_SYSTEM_REQUIRED : ES_CONTINUOUS);
}
