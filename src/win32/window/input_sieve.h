#pragma once

#include <windows.h>

#include "input/judge.h"
#include "win32/process/unique.h"

/// What makes two presses a double click on this machine.
Judge::Limits doubleClickLimits();

/// Shows the judge every message that the thread takes from its queue, in whatever loop, those of
/// message boxes included, and drops those that do not count. While it lives it is the thread's
/// only one.
class InputSieve {
 public:
    explicit InputSieve(Judge& judge);
    ~InputSieve();
    InputSieve(const InputSieve&) = delete;
    InputSieve& operator=(const InputSieve&) = delete;

 private:
    static LRESULT CALLBACK onGetMessage(int code, WPARAM wParam, LPARAM lParam);

    // A hook is told nothing of who set it.
    inline static Judge* hooked_ = nullptr;
    UniqueHook hook_;
};
