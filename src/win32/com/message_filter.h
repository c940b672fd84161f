#pragma once

#include <windows.h>

#include <objidl.h>

class Patience;

/// What COM asks the program while a call to another one is out (the IMessageFilter interface).
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
    /// Has COM wait and repeat the call as long as our patience lasts; then the refusal goes to the
    /// caller, who asks the user. Systems that don't call this leave all of it to the caller.
    /// `elapsed` counts from the call, not from its refusal, and is ignored.
    DWORD STDMETHODCALLTYPE RetryRejectedCall(HTASK callee, DWORD elapsed, DWORD reason) override;
    /// Handles what came: COM would leave it in the queue until the call returns.
    DWORD STDMETHODCALLTYPE MessagePending(HTASK callee, DWORD elapsed, DWORD type) override;

 private:
    Patience& patience_;
};
