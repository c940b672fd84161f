#include "platform/win32/message_filter.h"

#include "platform/win32/message_pump.h"

MessageFilter::MessageFilter() { CoRegisterMessageFilter(this, nullptr); }

MessageFilter::~MessageFilter() { CoRegisterMessageFilter(nullptr, nullptr); }

HRESULT MessageFilter::QueryInterface(REFIID iid, void** object) {
    const bool known = IsEqualIID(iid, IID_IUnknown) || IsEqualIID(iid, IID_IMessageFilter);
    *object = known ? this : nullptr;
    return known ? S_OK : E_NOINTERFACE;
}

DWORD MessageFilter::HandleInComingCall(DWORD, HTASK, DWORD, LPINTERFACEINFO) {
    return SERVERCALL_ISHANDLED;
}

DWORD MessageFilter::RetryRejectedCall(HTASK, DWORD, DWORD) {
    constexpr DWORD kGiveUp = static_cast<DWORD>(-1);
    return kGiveUp;
}

DWORD MessageFilter::MessagePending(HTASK, DWORD, DWORD) {
    handleWaitingMessages(WM_KEYFIRST, WM_KEYLAST);
    handleWaitingMessages(WM_MOUSEFIRST, WM_MOUSELAST);
    return PENDINGMSG_WAITDEFPROCESS;
}
