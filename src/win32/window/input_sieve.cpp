#include "win32/window/input_sieve.h"

#include "input/call_out.h"
#include "win32/process/require.h"
#include "win32/window/control_class.h"
#include "win32/window/input_messages.h"

namespace {

InputSieve* sieve = nullptr;

PressJudge::Limits systemLimits() {
    // The rectangle's sides; the second press may lie half of one away on either side.
    return {.time = GetDoubleClickTime(),
            .width = GetSystemMetrics(SM_CXDOUBLECLK) / 2,
            .height = GetSystemMetrics(SM_CYDOUBLECLK) / 2};
}

/// A mouse message that Windows made of a touch, whose press came as a pointer message before
/// (System Events and Mouse Messages).
bool isMadeOfTouch(UINT message) {
    constexpr LPARAM kMask = static_cast<LPARAM>(0xFFFFFF00);
    constexpr LPARAM kSignature = static_cast<LPARAM>(0xFF515700);
    return isMousePress(message) && (GetMessageExtraInfo() & kMask) == kSignature;
}

/// A posted message tells where it is meant in its own window only.
POINT placeOf(const MSG& message) {
    POINT place{static_cast<short>(LOWORD(message.lParam)),
                static_cast<short>(HIWORD(message.lParam))};
    if (isMousePress(message.message)) ClientToScreen(message.hwnd, &place);
    return place;
}

/// The keys that press a button.
bool pressesButtons(WPARAM key) { return key == VK_RETURN || key == VK_SPACE || key == VK_ESCAPE; }

/// Alt+Space.
bool opensSystemMenu(const MSG& message) {
    return message.message == WM_SYSKEYDOWN && message.wParam == VK_SPACE;
}

bool isUnmeant(const PressVerdict& press) {
    return press.late || press.repeated || press.onNewWindow || CallOut::any();
}

LRESULT CALLBACK onGetMessage(int code, WPARAM wParam, LPARAM lParam) {
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && sieve && sieve->drops(message)) {
        message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

InputSieve::InputSieve()
    : judge_(systemLimits()),
      hook_(require(SetWindowsHookExW(WH_GETMESSAGE, onGetMessage, nullptr, GetCurrentThreadId()),
                    L"la surveillance des messages")) {
    sieve = this;
}

InputSieve::~InputSieve() { sieve = nullptr; }

bool InputSieve::drops(const MSG& message) {
    const UINT kind = message.message;
    if (isMadeOfTouch(kind) || isRelease(kind)) {
        judge_.release();
    } else if (isPress(kind)) {
        const POINT place = placeOf(message);
        judge_.press(message.time, place.x, place.y);
    } else if (isKeyDown(kind)) {
        judge_.keyDown(message.time, static_cast<int>(message.wParam),
                       (HIWORD(message.lParam) & KF_REPEAT) != 0);
    } else if (isKeyUp(kind)) {
        judge_.keyUp(message.time, static_cast<int>(message.wParam));
    } else if (kind == WM_HOTKEY) {
        // Posted when the key went down.
        judge_.keyDown(message.time, HIWORD(message.lParam), false);
    } else {
        judge_.nothing();
        return false;
    }
    const PressVerdict press = judge_.verdict();
    // A window's frame is pressed to move or to close it, which waits; but not by mistake.
    if (isFramePress(kind)) return press.onNewWindow;
    if (opensSystemMenu(message) && press.late) return true;
    if (classOf(message.hwnd) != ControlClass::Button) return false;
    if (isKeyDown(kind)) return pressesButtons(message.wParam) && isUnmeant(press);
    return isPress(kind) && isUnmeant(press);
}

PressVerdict InputSieve::currentPress() {
    // What another program sends is no press, whatever was pressed last.
    if (!sieve || InSendMessageEx(nullptr) != ISMEX_NOSEND) return {};
    return sieve->judge_.verdict();
}

bool InputSieve::secondPressComes() {
    POINT place{};
    return sieve && GetCursorPos(&place) &&
           sieve->judge_.foreseen(GetTickCount(), place.x, place.y).onNewWindow;
}

void InputSieve::messageHandled() {
    if (sieve) sieve->judge_.nothing();
}

void InputSieve::workEnded() {
    if (sieve) sieve->judge_.workEnded(GetTickCount());
}

void InputSieve::windowShown() {
    if (!sieve) return;
    ++sieve->windowsShown_;
    sieve->judge_.windowShown(GetTickCount());
}

int InputSieve::windowsShown() { return sieve ? sieve->windowsShown_ : 0; }
