#pragma once

#include <windows.h>

#include "input/judge.h"

/// What a message that is taken from the queue stands for.
Deed deedOf(const MSG& message, const Judge& judge);

/// Whether it was sent by another program, which presses nothing.
inline bool isFromProgram() { return InSendMessageEx(nullptr) != ISMEX_NOSEND; }
