#pragma once

#include <windows.h>

/// While it lives, mouse and keyboard messages for the program's buttons are dropped whenever a
/// call to another program is out. All other messages pass, posted ones included.
class InputSieve {
 public:
    InputSieve();
    ~InputSieve();
    InputSieve(const InputSieve&) = delete;
    InputSieve& operator=(const InputSieve&) = delete;

 private:
    HHOOK hook_;
};
