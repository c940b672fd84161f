#include "platform/win32/window/input_sieve.h"

#include "platform/call_out.h"
#include "platform/win32/process/require.h"
#include "platform/win32/window/control_class.h"

namespace {

bool isInput(UINT message) {
    return (message >= WM_KEYFIRST && message <= WM_KEYLAST) ||
           (message > WM_MOUSEMOVE && message <= WM_MOUSELAST);
}

LRESULT CALLBACK onGetMessage(int code, WPARAM wParam, LPARAM lParam) {
    auto& message = *reinterpret_cast<MSG*>(lParam);
    if (code == HC_ACTION && wParam == PM_REMOVE && CallOut::any() && isInput(message.message) &&
        classOf(message.hwnd) == ControlClass::Button) {
        message.message = WM_NULL;
    }
    return CallNextHookEx(nullptr, code, wParam, lParam);
}

}  // namespace

InputSieve::InputSieve()
    : hook_(require(SetWindowsHookExW(WH_GETMESSAGE, onGetMessage, nullptr, GetCurrentThreadId()),
                    L"la surveillance des messages")) {}
