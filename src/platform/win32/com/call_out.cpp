#include "platform/win32/com/call_out.h"

#include "platform/retry_policy.h"
#include "platform/win32/window/message_pump.h"
#include "platform/win32/window/modal_box.h"

namespace {

bool isBusy(HRESULT result) {
    return result == RPC_E_CALL_REJECTED || result == RPC_E_SERVERCALL_RETRYLATER;
}

void waitWhileDrawing(unsigned milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_ALLINPUT, 0);
        handleWaitingMessages();
    }
}

bool userGoesOn() {
    return showModalBox({.text = L"SolidWorks est occupé.",
                         .title = L"Tarnwick",
                         .style = MB_RETRYCANCEL | MB_ICONEXCLAMATION}) == IDRETRY;
}

}  // namespace

HRESULT callPatiently(const std::function<HRESULT()>& call) {
    HRESULT result = call();
    ULONGLONG since = GetTickCount64();
    while (isBusy(result)) {
        const auto wait =
            CallOut::repeatedInVain() ? std::nullopt : waitBeforeRetry(GetTickCount64() - since);
        if (wait) {
            const CallOut waiting;
            waitWhileDrawing(*wait);
        } else if (userGoesOn()) {
            since = GetTickCount64();
        } else {
            return result;
        }
        result = call();
    }
    return result;
}
