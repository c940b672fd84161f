#include "win32/com/message_filter.h"

#include <algorithm>

#include "rules/patience.h"
#include "win32/process/require.h"

MessageFilter::MessageFilter(Patience& patience) : patience_(patience) {
    requireSuccess(CoRegisterMessageFilter(this, nullptr), L"le filtre des appels");
}

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
    constexpr DWORD kShortestWait = 100;  // below, COM repeats the call at once
    const auto wait = patience_.afterRefusal();
    if (!wait) return kGiveUp;
    return *wait == 0 ? 0 : std::max<DWORD>(*wait, kShortestWait);
}

DWORD MessageFilter::MessagePending(HTASK, DWORD, DWORD) {
    patience_.whilePending();
    return PENDINGMSG_WAITDEFPROCESS;
}
