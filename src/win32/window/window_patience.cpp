#include "win32/window/window_patience.h"

#include "input/searching.h"
#include "win32/process/require.h"
#include "win32/window/control_class.h"
#include "win32/window/hourglass.h"
#include "win32/window/input_messages.h"
#include "win32/window/input_sieve.h"

namespace {

using Milliseconds = std::chrono::milliseconds;
using Clock = std::chrono::steady_clock;

/// A search that has taken no longer is not watched yet.
constexpr Milliseconds kNoTime(50);
/// How often windows are served at least.
constexpr Milliseconds kServing(20);
/// How long the clock that messages are dated by may stand still (the GetTickCount function).
constexpr Milliseconds kTick(16);

Milliseconds lasting() { return std::chrono::duration_cast<Milliseconds>(Searching::lasting()); }

/// Wheels and fingers do their work at once.
bool movesSomething(UINT message) {
    return message == WM_MOUSEWHEEL || message == WM_MOUSEHWHEEL || message == WM_POINTERWHEEL ||
           message == WM_TOUCH;
}

/// A key goes down, or is a character by now. What it is when it goes up again follows from that.
bool isTyped(UINT message) { return message == WM_KEYDOWN || message == WM_CHAR; }

/// The field of a drop-down: what is typed there may be a newer search.
bool isTypedIntoDropDown(const MSG& message) {
    if (message.wParam == VK_TAB || message.wParam == VK_RETURN) return false;
    HWND field = GetParent(message.hwnd);
    return classOf(message.hwnd) == ControlClass::Edit && field &&
           classOf(field) == ControlClass::ComboBox;
}

/// Windows are moved, sized and closed by their frames; the frames of controls are scroll bars.
bool isOfProgramWindow(HWND window) { return GetAncestor(window, GA_ROOT) == window; }

bool isDropped(const MSG& message) {
    if (isFramePress(message.message)) return !isOfProgramWindow(message.hwnd);
    if (isPress(message.message) || movesSomething(message.message)) return true;
    return isTyped(message.message) && !isTypedIntoDropDown(message);
}

/// A press before the search began was not meant for it.
bool stopsSearch(const MSG& message) {
    if (message.message != WM_KEYDOWN || message.wParam != VK_ESCAPE) return false;
    const auto ago = GetTickCount() - message.time;
    return static_cast<LONG>(ago) <= (lasting() + kTick).count();
}

void serveOne(const MSG& message) {
    if (stopsSearch(message)) Searching::stop();
    if (isDropped(message)) return;
    TranslateMessage(&message);
    DispatchMessageW(&message);
}

/// False at the program's end, which stays queued.
bool handleWaiting() {
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
        if (message.message == WM_QUIT) {
            PostQuitMessage(static_cast<int>(message.wParam));
            return false;
        }
        serveOne(message);
        InputSieve::messageHandled();
    }
    return true;
}

}  // namespace

WindowPatience::WindowPatience()
    : woken_(require(CreateEventW(nullptr, FALSE, FALSE, nullptr), L"un signal")) {}

bool WindowPatience::serve() {
    if (lasting() < kNoTime || Clock::now() - served_ < kServing) return true;
    Hourglass::show();
    const bool programGoesOn = handleWaiting();
    served_ = Clock::now();
    return Searching::goesOn() && programGoesOn;
}

bool WindowPatience::wait() {
    constexpr DWORD kFew = 5;
    WaitForSingleObject(woken_.get(), kFew);
    return serve();
}
