#pragma once

#include <windows.h>

#include <objidl.h>

class Patience;

/// What COM asks us while a call to another program is out (the IMessageFilter interface).
/// Registered for the thread as long as it lives.
class MessageFilter final : public IMessageFilter {
 public:
    explicit MessageFilter(Patience& patience);
    ~MessageFilter();
    MessageFilter(const MessageFilter&) = delete;
    MessageFilter& operator=(const MessageFilter&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override { return 1; }
    ULONG STDMETHODCALLTYPE Release() override { return 1; }

    DWORD STDMETHODCALLTYPE HandleInComingCall(DWORD type, HTASK caller, DWORD elapsed,
                                               LPINTERFACEINFO information) override;
    /// COM waits and repeats the call for us as long as our patience lasts; then the refusal goes
    /// to the caller, who asks the user. Systems that don't ask leave it to the caller altogether.
    /// What has elapsed is since the call went out, not since it was refused, and means nothing.
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK callee, DWORD elapsed, DWORD reason) override;
    /// COM leaves what came in the queue, where it would wait for the call.
    DWORD STDMETHODCALLTYPE MessagePending(HTASK callee, DWORD elapsed, DWORD type) override;

 private:
    Patience& patience_;
};
