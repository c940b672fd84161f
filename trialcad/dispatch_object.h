#pragma once

#include <windows.h>

#include <oaidl.h>
#include <string>

#include "members.h"

class CallDesk;

/// An IDispatch over a table of members: finds them by name, and passes every call to the call
/// desk.
class DispatchObject : public IDispatch {
 public:
    DispatchObject(MemberNames& names, CallDesk& desk) : names_(names), desk_(desk) {}
    DispatchObject(const DispatchObject&) = delete;
    DispatchObject& operator=(const DispatchObject&) = delete;

    HRESULT STDMETHODCALLTYPE QueryInterface(REFIID iid, void** object) override;
    ULONG STDMETHODCALLTYPE AddRef() override;
    ULONG STDMETHODCALLTYPE Release() override;
    HRESULT STDMETHODCALLTYPE GetTypeInfoCount(UINT* count) override;
    HRESULT STDMETHODCALLTYPE GetTypeInfo(UINT index, LCID locale, ITypeInfo** info) override;
    HRESULT STDMETHODCALLTYPE GetIDsOfNames(REFIID iid, LPOLESTR* names, UINT count, LCID locale,
                                            DISPID* ids) override;
    HRESULT STDMETHODCALLTYPE Invoke(DISPID id, REFIID iid, LCID locale, WORD flags,
                                     DISPPARAMS* parameters, VARIANT* result, EXCEPINFO* exception,
                                     UINT* badArgument) override;

    /// False once nothing behind the object answers any more.
    virtual bool isConnected() const { return true; }

 protected:
    virtual ~DispatchObject() = default;

    /// What the journal puts before a call's name.
    virtual std::wstring journalPrefix() const { return {}; }

 private:
    MemberNames& names_;
    CallDesk& desk_;
    ULONG references_ = 0;
};
