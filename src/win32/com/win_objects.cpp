#include "win32/com/win_objects.h"

#include <cstdint>
#include <objbase.h>
#include <oleauto.h>
#include <span>

#include "common/text.h"
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

std::wstring displayName(IMoniker* moniker) {
    ComPtr<IBindCtx> context;
    wchar_t* text = nullptr;
    if (FAILED(CreateBindCtx(0, context.put())) ||
        FAILED(moniker->GetDisplayName(context.get(), nullptr, &text))) {
        return {};
    }
    const std::wstring name(text);
    CoTaskMemFree(text);
    return name;
}

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

CallResult WinObjectServers::runningNamed(const std::wstring& beginning,
                                          std::shared_ptr<ServedObject>& object) {
    ComPtr<IRunningObjectTable> table;
    ComPtr<IEnumMoniker> all;
    HRESULT result = GetRunningObjectTable(0, table.put());
    if (SUCCEEDED(result)) result = table->EnumRunning(all.put());
    if (FAILED(result)) return result;
    for (ComPtr<IMoniker> each; all->Next(1, each.put(), nullptr) == S_OK;) {
        const std::wstring name = displayName(each.get());
        if (!equalIgnoringCase(name.substr(0, beginning.size()), beginning)) continue;
        ComPtr<IUnknown> found;
        ComPtr<IDispatch> dispatch;
        result = table->GetObject(each.get(), found.put());
        if (SUCCEEDED(result)) result = found->QueryInterface(IID_IDispatch, dispatch.putVoid());
        if (dispatch) object = std::make_shared<WinObject>(dispatch);
        // One that died stays in the table for a while.
        if (object || isBusy(result)) return result;
    }
    return MK_E_UNAVAILABLE;
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
