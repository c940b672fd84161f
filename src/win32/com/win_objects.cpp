#include "win32/com/win_objects.h"

#include <cstdint>
#include <objbase.h>
#include <oleauto.h>
#include <span>

#include "win32/com/variant_values.h"

namespace {

/// What the server said of its failure. Freed when read.
struct ServersWords : EXCEPINFO {
    ServersWords() : EXCEPINFO{} {}
    ~ServersWords() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
    ServersWords(const ServersWords&) = delete;
    ServersWords& operator=(const ServersWords&) = delete;

    std::wstring description() {
        if (pfnDeferredFillIn) pfnDeferredFillIn(this);
        return textIn(bstrDescription);
    }
};

void take(const VARIANT& result, ServersReply& reply) {
    if (V_VT(&result) != VT_DISPATCH) {
        reply.value = valueIn(result);
    } else if (V_DISPATCH(&result)) {
        reply.object = std::make_shared<WinObject>(ComPtr(V_DISPATCH(&result)));
    } else {
        reply.value = ObjectPtr();
    }
}

}  // namespace

CallResult WinObject::lookUp(std::wstring_view name, std::int32_t& member) {
    std::wstring spelled(name);
    LPOLESTR names[] = {spelled.data()};
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    member = id;
    return result;
}

CallResult WinObject::invoke(std::int32_t member, Access access,
                             std::span<const Argument> arguments, ServersReply& reply) {
    const bool put = access == Access::Put;
    const WORD flags = put ? DISPATCH_PROPERTYPUT : DISPATCH_METHOD | DISPATCH_PROPERTYGET;
    CallArguments variants(arguments);
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{variants.data(), put ? &named : nullptr, variants.count(), put ? 1U : 0U};
    OwnedVariant result;
    ServersWords words;
    // A dialog that the server opens during the call may come forward, if that is ours to give.
    CoAllowSetForegroundWindow(dispatch_.get(), nullptr);
    const HRESULT outcome =
        dispatch_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                          put ? nullptr : &result, &words, nullptr);
    if (SUCCEEDED(outcome)) {
        variants.writeBack();
        take(result, reply);
    } else {
        reply.description = words.description();
        reply.errorCode = words.scode;
    }
    return outcome;
}

CallResult WinObjectServers::running(const std::wstring& progId,
                                     std::shared_ptr<ServedObject>& object) {
    CLSID classId;
    ComPtr<IUnknown> found;
    ComPtr<IDispatch> dispatch;
    HRESULT result = CLSIDFromProgID(progId.c_str(), &classId);
    if (SUCCEEDED(result)) result = GetActiveObject(classId, nullptr, found.put());
    if (SUCCEEDED(result)) result = found->QueryInterface(IID_IDispatch, dispatch.putVoid());
    if (dispatch) object = std::make_shared<WinObject>(dispatch);
    return result;
}

std::shared_ptr<ServedObject> WinObjectServers::make(const std::wstring& progId) {
    CLSID classId;
    ComPtr<IDispatch> dispatch;
    if (FAILED(CLSIDFromProgID(progId.c_str(), &classId)) ||
        FAILED(CoCreateInstance(classId, nullptr, CLSCTX_INPROC_SERVER, IID_IDispatch,
                                dispatch.putVoid()))) {
        return nullptr;
    }
    return std::make_shared<WinObject>(dispatch);
}
