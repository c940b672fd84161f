#include "call_desk.h"

#include "call_text.h"
#include "dispatch_object.h"
#include "win32/process/message_pump.h"

namespace {

std::wstring lineOf(const Request& request, const Call& call) {
    const std::wstring arguments = argumentsText(call);
    if (request.put) return request.name + L" = " + arguments;
    if (request.member && request.member->isProperty && call.count() == 0) return request.name;
    return request.name + L"(" + arguments + L")";
}

bool isRefusal(HRESULT code) {
    return code == RPC_E_CALL_REJECTED || code == RPC_E_SERVERCALL_RETRYLATER;
}

const wchar_t* outcomeOf(const Reply& reply, const Call& call) {
    if (isRefusal(reply.code)) return L" -> rejected";
    return FAILED(reply.code) ? L" -> failed" : call.outcome();
}

std::wstring newsOf(const Reply& reply, const Call& call) {
    if (isRefusal(reply.code)) return L"occupé : appel rejeté";
    if (reply.code == RPC_E_DISCONNECTED) return L"document fermé : l'objet ne répond plus";
    return FAILED(reply.code) ? L"échec" : call.news();
}

/// Waits, while this thread's messages, and so other calls, are still handled. False when the
/// session has ended meanwhile.
bool waitWithMessages(DWORD milliseconds) {
    const ULONGLONG end = GetTickCount64() + milliseconds;
    for (ULONGLONG now = GetTickCount64(); now < end; now = GetTickCount64()) {
        if (!handleWaitingMessages()) return false;
        MsgWaitForMultipleObjectsEx(0, nullptr, static_cast<DWORD>(end - now), QS_ALLINPUT,
                                    MWMO_INPUTAVAILABLE);
    }
    return true;
}

/// The member's action for this kind of call; throws CallError when it has none.
Member::Action actionOf(const Request& request, const Call& call) {
    const Member::Action action = request.put ? request.member->put : request.member->invoke;
    if (!action) throw CallError{DISP_E_MEMBERNOTFOUND};
    if (call.count() != (request.put ? 1 : request.member->arity)) {
        throw CallError{DISP_E_BADPARAMCOUNT};
    }
    return action;
}

}  // namespace

void describe(const Reply& reply, EXCEPINFO& exception) {
    exception = {};
    exception.bstrSource = SysAllocString(L"SolidWorks");
    exception.bstrDescription = SysAllocString(reply.description.c_str());
    exception.scode = E_FAIL;
}

Reply CallDesk::receive(const Request& request, Call& call) {
    // The line shows the arguments as sent, so it is made before any of them is written.
    const std::wstring line = lineOf(request, call);
    Reply reply = perform(request, call);
    record(line, reply, call);
    if (!request.member || isRefusal(reply.code)) return reply;
    if (!waitWithMessages(faults_.delayOf(request.member->name))) return {RPC_E_DISCONNECTED};
    return reply;
}

Reply CallDesk::perform(const Request& request, Call& call) {
    if (!request.member) return {DISP_E_MEMBERNOTFOUND};
    if (!request.object.isConnected()) return {RPC_E_DISCONNECTED};
    if (const auto refusal = faults_.refuseCall(request.member->name)) return {*refusal};
    if (faults_.mustFail(request.member->name)) {
        return {DISP_E_EXCEPTION, 0,
                L"Échec de « " + std::wstring(request.member->name) +
                    L" » provoqué par la session d'essai."};
    }
    try {
        actionOf(request, call)(request.object, call);
    } catch (const CallError& error) {
        return {error.code, error.argument};
    }
    return {S_OK};
}

void CallDesk::record(const std::wstring& line, const Reply& reply, const Call& call) {
    journal_.write(line + outcomeOf(reply, call));
    if (!watcher_) return;
    watcher_(line);
    if (const std::wstring news = newsOf(reply, call); !news.empty()) watcher_(L"      → " + news);
}
