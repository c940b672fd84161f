#pragma once

#include <windows.h>

/// Brings the window of another program to the front that its user would work in: the uppermost
/// one that is enabled, out of the taskbar if it is minimised. False when it shows none.
bool raiseProgram(DWORD process);
