#include "win32/window/deferred_events.h"

namespace {

// No virtual key: such are the timers of hot keys that are held.
constexpr UINT_PTR kTimer = 0x100;

}  // namespace

void DeferredEvents::add(int controlId, Event event) {
    events_.emplace_back(controlId, event);
    SetTimer(window_, kTimer, USER_TIMER_MINIMUM, nullptr);
}

void DeferredEvents::drop(int controlId, Event event) {
    std::erase(events_, std::pair(controlId, event));
}

std::vector<std::pair<int, Event>> DeferredEvents::take() {
    KillTimer(window_, kTimer);
    return std::exchange(events_, {});
}

bool DeferredEvents::isDue(UINT_PTR timer) {
    return timer == kTimer && GetKeyState(VK_LBUTTON) >= 0;
}
