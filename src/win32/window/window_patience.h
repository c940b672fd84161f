#pragma once

#include <windows.h>

#include <chrono>

#include "ports/search_patience.h"
#include "win32/process/unique.h"

/// Serves the program's windows while the main thread searches: they are drawn, moved and sized,
/// answer other programs, and take the key that stops the search. Presses and keys that are not for
/// the search are dropped here, events that came otherwise at the gate.
///
/// A search that is over in no time is one step, as it were: nothing is served.
class WindowPatience : public SearchPatience {
 public:
    WindowPatience();

    bool serve() override;
    bool wait() override;
    void wake() override { SetEvent(woken_.get()); }

 private:
    UniqueHandle woken_;  ///< an event that resets itself
    std::chrono::steady_clock::time_point served_;
};
