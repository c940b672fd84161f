#include "dispatch_object.h"

#include "call_desk.h"
#include "win32/com/com_ptr.h"

namespace {

/// Whether a property's value is marked as such, as servers require (IDispatch::Invoke).
bool bearsTheNameOfAValue(const DISPPARAMS& parameters) {
    return parameters.cNamedArgs == 1 && parameters.rgdispidNamedArgs[0] == DISPID_PROPERTYPUT;
}

}  // namespace

HRESULT DispatchObject::QueryInterface(REFIID iid, void** object) {
    if (!object) return E_POINTER;
    const bool known = iid == IID_IUnknown || iid == IID_IDispatch;
    *object = known ? static_cast<IDispatch*>(this) : nullptr;
    if (!known) return E_NOINTERFACE;
    AddRef();
    return S_OK;
}

// Everything runs on the apartment's one thread, so plain counting is enough.
ULONG DispatchObject::AddRef() { return ++references_; }

ULONG DispatchObject::Release() {
    const ULONG left = --references_;
    if (left == 0) delete this;
    return left;
}

HRESULT DispatchObject::GetTypeInfoCount(UINT* count) {
    if (!count) return E_POINTER;
    *count = 0;
    return S_OK;
}

HRESULT DispatchObject::GetTypeInfo(UINT, LCID, ITypeInfo** info) {
    if (!info) return E_POINTER;
    *info = nullptr;
    return DISP_E_BADINDEX;
}

HRESULT DispatchObject::GetIDsOfNames(REFIID, LPOLESTR* names, UINT count, LCID, DISPID* ids) {
    if (!names || !ids || count == 0) return E_INVALIDARG;
    if (!isConnected()) return RPC_E_DISCONNECTED;
    if (const auto refusal = desk_.refuseLookUp(names[0])) return *refusal;
    // Further names would be names of arguments, which have none here.
    for (UINT i = 0; i < count; ++i) ids[i] = DISPID_UNKNOWN;
    const std::optional<DISPID> id = names_.lookUp(names[0]);
    if (id) ids[0] = *id;
    return id && count == 1 ? S_OK : DISP_E_UNKNOWNNAME;
}

HRESULT DispatchObject::Invoke(DISPID id, REFIID, LCID, WORD flags, DISPPARAMS* parameters,
                               VARIANT* result, EXCEPINFO* exception, UINT* badArgument) {
    if (!parameters) return E_INVALIDARG;
    // A slow call handles messages, one of which may release the caller's last reference.
    const ComPtr<IDispatch> alive(this);
    const Member* member = names_.find(id);
    const bool put = flags & (DISPATCH_PROPERTYPUT | DISPATCH_PROPERTYPUTREF);
    if (put && !bearsTheNameOfAValue(*parameters)) return DISP_E_PARAMNOTFOUND;
    const std::wstring name = member ? names_.spelling(id) : L"dispid " + std::to_wstring(id);
    Call call(*parameters);
    const Reply reply = desk_.receive({*this, member, journalPrefix() + name, put}, call);
    if (SUCCEEDED(reply.code)) call.deliver(result);
    if (reply.code == DISP_E_EXCEPTION && exception) describe(reply, *exception);
    if (badArgument) *badArgument = reply.argument;
    return reply.code;
}
