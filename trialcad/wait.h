#pragma once

#include <windows.h>

/// Lets the given time pass while this thread's messages, and so other calls, go on being handled.
/// False when the session ended meanwhile.
bool waitWithMessages(DWORD milliseconds);
