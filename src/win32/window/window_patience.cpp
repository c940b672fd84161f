#include "win32/window/window_patience.h"

#include "win32/process/require.h"
#include "win32/window/message_loop.h"
#include "win32/window/pointer.h"

namespace {

/// A search that has taken no longer is not watched yet, in milliseconds.
constexpr Moment kNoTime = 50;
/// How often windows are served at least.
constexpr Moment kServing = 20;

}  // namespace

WindowPatience::WindowPatience(Judge& judge)
    : judge_(judge), woken_(require(CreateEventW(nullptr, FALSE, FALSE, nullptr), L"un signal")) {}

// It shows from the first moment that it goes on, though nothing is found yet.
void WindowPatience::begin(const EventSink& window, SearchKind kind) {
    judge_.searchBegins(window, kind);
    showPointer(judge_);
}

void WindowPatience::end() {
    judge_.searchEnds();
    showPointer(judge_);
}

bool WindowPatience::serve() {
    const bool isTime = judge_.searchLasts() >= kNoTime && judge_.now() - served_ >= kServing;
    if (!isTime) return judge_.searchGoesOn();
    const bool programGoesOn = handleWaitingMessages(judge_);
    served_ = judge_.now();
    return judge_.searchGoesOn() && programGoesOn;
}

bool WindowPatience::wait() {
    constexpr DWORD kFew = 5;
    WaitForSingleObject(woken_.get(), kFew);
    return serve();
}
