#include "win32/window/waiting.h"

#include <cstdint>
#include <utility>

#include "win32/process/require.h"
#include "win32/window/message_loop.h"

namespace {

/// How long a search lasts before its window is served, in milliseconds.
constexpr Moment kNoTime = 50;
/// How much time passes between two servings, in milliseconds.
constexpr Moment kServing = 20;

// A posted message has COM look up from the call that is out (the IMessageFilter::MessagePending
// method).
void CALLBACK wake(PTP_CALLBACK_INSTANCE, void* thread, PTP_TIMER) {
    PostThreadMessageW(static_cast<DWORD>(reinterpret_cast<DWORD_PTR>(thread)), WM_NULL, 0, 0);
}

}  // namespace

WinSearchWatch::WinSearchWatch(Judge& judge)
    : judge_(judge), woken_(require(CreateEventW(nullptr, FALSE, FALSE, nullptr), L"un signal")) {}

// The pointer shows the search from its first moment on, before anything is found.
void WinSearchWatch::begin(const EventSink& window, SearchKind kind) {
    judge_.searchBegins(window, kind);
    showPointer(judge_);
}

void WinSearchWatch::end() {
    judge_.searchEnds();
    showPointer(judge_);
}

bool WinSearchWatch::serve() {
    const bool isTime = judge_.searchLasts() >= kNoTime && judge_.now() - served_ >= kServing;
    if (!isTime) return judge_.searchGoesOn();
    const bool programGoesOn = handleWaitingMessages(judge_);
    served_ = judge_.now();
    return judge_.searchGoesOn() && programGoesOn;
}

bool WinSearchWatch::wait() {
    constexpr DWORD kFew = 5;
    WaitForSingleObject(woken_.get(), kFew);
    return serve();
}

WinBusyWaiting::WinBusyWaiting(Judge& judge)
    : judge_(judge),
      timer_(require(CreateThreadpoolTimer(
                         wake, reinterpret_cast<void*>(DWORD_PTR{GetCurrentThreadId()}), nullptr),
                     L"une minuterie")) {}

void WinBusyWaiting::wait(unsigned milliseconds) {
    const std::uint64_t end = now() + milliseconds;
    for (std::uint64_t time = now(); time < end; time = now()) {
        // COM has seen, and left in the queue, what came during the call.
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - time), QS_ALLINPUT,
                                    MWMO_INPUTAVAILABLE);
        handleWaitingMessages(judge_);
    }
}

void WinBusyWaiting::handleInput() {
    constexpr std::pair<UINT, UINT> kInput[] = {{WM_KEYFIRST, WM_KEYLAST},
                                                {WM_MOUSEFIRST, WM_MOUSELAST},
                                                {WM_NCMOUSEMOVE, WM_NCXBUTTONDBLCLK},
                                                {WM_NCPOINTERUPDATE, WM_POINTERHWHEEL},
                                                {WM_HOTKEY, WM_HOTKEY},
                                                {WM_SYSCOMMAND, WM_SYSCOMMAND},
                                                {WM_CLOSE, WM_CLOSE}};
    for (const auto& [first, last] : kInput) handleWaitingMessages(judge_, first, last);
}

void WinBusyWaiting::wakeIn(unsigned milliseconds) {
    constexpr std::int64_t kTicksPerMillisecond = 10'000;
    std::int64_t fromNow = -kTicksPerMillisecond * milliseconds;
    FILETIME due;
    CopyMemory(&due, &fromNow, sizeof due);
    SetThreadpoolTimer(timer_.get(), &due, 0, 0);
}
