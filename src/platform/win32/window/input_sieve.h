#pragma once

#include "platform/win32/process/unique.h"

/// While it lives, mouse and keyboard messages for the program's buttons are dropped whenever a
/// call to another program is out. All other messages pass, posted ones included.
class InputSieve {
 public:
    InputSieve();

 private:
    UniqueHook hook_;
};
