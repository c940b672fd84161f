#include "win32/window/input_sieve.h"

#include "win32/process/require.h"
#include "win32/window/message_deed.h"

Judge::Limits doubleClickLimits() {
    // The rectangle's sides; the second press may lie half of one away on either side.
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
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && hooked_) {
        const Verdict verdict = hooked_->take(deedOf(message, *hooked_));
        if (verdict != Verdict::Counts) message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}
