#pragma once

#include <windows.h>

#include <utility>
#include <vector>

#include "ports/window.h"

/// The events that a window raises once the message is done with that is being handled, yet before
/// any other.
class DeferredEvents {
 public:
    explicit DeferredEvents(HWND window) : window_(window) {}

    void add(int controlId, Event event);
    void drop(int controlId, Event event);
    bool empty() const { return events_.empty(); }
    /// Hands them over: their time has come.
    std::vector<std::pair<int, Event>> take();

    /// Whether a timer of the window is the one that they wait for. While the mouse button is down,
    /// they wait on: the end of a press that took the focus elsewhere has them raised first, and is
    /// still this press.
    static bool isDue(UINT_PTR timer);

 private:
    HWND window_;
    std::vector<std::pair<int, Event>> events_;
};
