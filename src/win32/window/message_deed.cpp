#include "win32/window/message_deed.h"

#include "win32/process/require.h"
#include "win32/window/dialog_window.h"
#include "win32/window/focus.h"
#include "win32/window/window_keys.h"

namespace {

using Kind = Deed::Kind;
using Target = Deed::Target;

/// Whether Windows made this mouse message of a touch, whose press has come before as a pointer
/// message (System Events and Mouse Messages).
bool isMadeOfTouch(UINT message) {
    constexpr LPARAM kMask = static_cast<LPARAM>(0xFFFFFF00);
    constexpr LPARAM kSignature = static_cast<LPARAM>(0xFF515700);
    return isPress(message) && (GetMessageExtraInfo() & kMask) == kSignature;
}

Kind kindOf(UINT message) {
    if (message == WM_RBUTTONUP) return Kind::Menu;
    if (isRelease(message)) return Kind::Release;
    if (isTouch(message)) return Kind::Touch;
    if (isFramePress(message)) return Kind::FramePress;
    if (isMousePress(message)) return Kind::Press;
    if (isKeyDown(message)) return Kind::Key;
    if (isKeyUp(message)) return Kind::KeyUp;
    if (isScroll(message)) return Kind::Scroll;
    switch (message) {
        case WM_HOTKEY:
            return Kind::HotKey;
        case WM_CHAR:
            return Kind::Typed;
        case BM_CLICK:
            return Kind::Click;
        default:
            return Kind::Other;
    }
}

/// The place on the screen; mouse messages have the one within their own window.
POINT placeOf(const MSG& message) {
    POINT place{static_cast<short>(LOWORD(message.lParam)),
                static_cast<short>(HIWORD(message.lParam))};
    if (isMousePress(message.message)) ClientToScreen(message.hwnd, &place);
    return place;
}

bool isKey(const MSG& message) { return isKeyDown(message.message) || message.message == WM_CHAR; }

/// The control that a key acts on: the one that Tab moves to or whose shortcut it is, otherwise the
/// one that gets it.
HWND receiverOf(const MSG& message, HWND window) {
    if (!isKey(message)) return message.hwnd;
    if (message.message == WM_KEYDOWN && message.wParam == VK_TAB) {
        HWND focus = controlHolding(window, GetFocus());
        return focus ? GetNextDlgTabItem(window, focus, GetKeyState(VK_SHIFT) < 0)
                     : firstControl(window);
    }
    const int shortcut = shortcutIn(window, message);
    return shortcut != 0 ? GetDlgItem(window, shortcut) : message.hwnd;
}

/// What a message is aimed at while a window searches.
Target targetInSearch(const MSG& message, const EventSink& searching) {
    DialogWindow* window = DialogWindow::ofEvents(searching);
    if (!window) return Target::Other;
    HWND receiver = receiverOf(message, window->handle());
    if (window->asksForSearch(receiver)) return Target::SearchControl;
    // The frames of controls are scroll bars. A key with Alt that is no shortcut belongs to the
    // window's frame.
    const bool ofFrame = isFramePress(message.message)
                             ? GetAncestor(message.hwnd, GA_ROOT) == message.hwnd
                             : message.message == WM_SYSKEYDOWN && receiver == message.hwnd;
    return ofFrame ? Target::Window : Target::Other;
}

Target targetOf(const MSG& message, const Situation& now) {
    const bool isButton = classOf(message.hwnd) == ControlClass::Button;
    if (!now.searching) return isButton ? Target::Button : Target::Other;
    return now.alone && isButton ? Target::Button : targetInSearch(message, *now.searching);
}

}  // namespace

Deed deedOf(const MSG& message, const Judge& judge) {
    Deed deed{.kind = kindOf(message.message)};
    if (deed.kind == Kind::Other) return deed;
    deed.time = widened(message.time, judge.now());
    deed.target = targetOf(message, judge.situation());
    if (isPress(message.message) || isTouch(message.message)) {
        deed.ofTouch = isMadeOfTouch(message.message);
        const POINT place = placeOf(message);
        deed.x = place.x;
        deed.y = place.y;
    }
    // A hot key is posted when it goes down.
    deed.key =
        static_cast<int>(deed.kind == Kind::HotKey ? HIWORD(message.lParam) : message.wParam);
    deed.repeated = deed.kind == Kind::Key && (HIWORD(message.lParam) & KF_REPEAT) != 0;
    deed.withAlt = message.message == WM_SYSKEYDOWN;
    return deed;
}

Judge::Limits doubleClickLimits() {
    // Windows returns the sides of a rectangle around the first press, hence half of each.
    return {.time = GetDoubleClickTime(),
            .width = GetSystemMetrics(SM_CXDOUBLECLK) / 2,
            .height = GetSystemMetrics(SM_CYDOUBLECLK) / 2};
}

InputSieve::InputSieve(Judge& judge)
    : hook_(require(SetWindowsHookExW(WH_GETMESSAGE, onGetMessage, nullptr, GetCurrentThreadId()),
                    L"la surveillance des messages")) {
    hooked_ = &judge;
}

InputSieve::~InputSieve() { hooked_ = nullptr; }

LRESULT CALLBACK InputSieve::onGetMessage(int code, WPARAM wParam, LPARAM lParam) {
    // Windows passes on all flags with which the message was taken.
    if (code == HC_ACTION && (wParam & PM_REMOVE) != 0 && hooked_) {
        auto& message = *reinterpret_cast<MSG*>(lParam);
        const Verdict verdict = hooked_->take(deedOf(message, *hooked_));
        if (verdict != Verdict::Counts) message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
