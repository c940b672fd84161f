#include "platform/win32/com/late_bound_object.h"

#include <oleauto.h>

#include "common/runtime_error.h"
#include "platform/win32/com/call_out.h"
#include "platform/win32/com/variant_values.h"

namespace {

std::wstring_view viewOf(BSTR text) {
    return text ? std::wstring_view(text, SysStringLen(text)) : std::wstring_view();
}

/// What the server said of its failure. Freed when read.
struct Failure : EXCEPINFO {
    Failure() : EXCEPINFO{} {}
    ~Failure() {
        SysFreeString(bstrSource);
        SysFreeString(bstrDescription);
        SysFreeString(bstrHelpFile);
    }
    Failure(const Failure&) = delete;
    Failure& operator=(const Failure&) = delete;

    std::wstring description() {
        if (pfnDeferredFillIn) pfnDeferredFillIn(this);
        return std::wstring(viewOf(bstrDescription));
    }
};

/// The run-time error that a server names by its number (the CTL_E_ codes of olectl.h).
RuntimeError numberedError(HRESULT code, const std::wstring& description) {
    switch (HRESULT_CODE(code)) {
        case 53:
            return errors::fileNotFound(description);
        case 70:
            return errors::permissionDenied(description);
        case 75:
            return errors::fileAccess(description);
        case 76:
            return errors::pathNotFound(description);
        default:
            return errors::automation(description);
    }
}

RuntimeError callError(HRESULT result, std::wstring_view name, Failure& failure) {
    const HRESULT code = result == DISP_E_EXCEPTION ? failure.scode : result;
    if (HRESULT_FACILITY(code) == FACILITY_CONTROL) {
        return numberedError(code, failure.description());
    }
    switch (result) {
        case DISP_E_UNKNOWNNAME:
        case DISP_E_MEMBERNOTFOUND:
            return errors::unknownMember(std::wstring(name));
        case DISP_E_TYPEMISMATCH:
            return errors::typeMismatch();
        case RPC_E_CALL_REJECTED:
        case RPC_E_SERVERCALL_RETRYLATER:
            return errors::automation(L"SolidWorks est occupé et n'a pas pris l'appel.");
        case RPC_E_DISCONNECTED:
        case RPC_E_SERVER_DIED:
        case RPC_E_SERVER_DIED_DNE:
        case CO_E_OBJNOTCONNECTED:
        case __HRESULT_FROM_WIN32(RPC_S_SERVER_UNAVAILABLE):
        case __HRESULT_FROM_WIN32(RPC_S_CALL_FAILED):
            return errors::automation(
                L"La session SolidWorks ne répond plus : elle a été fermée ou s'est arrêtée.");
        default:
            return errors::automation(failure.description());
    }
}

}  // namespace

LateBoundObject::LateBoundObject(IDispatch* dispatch, NameTables& tables,
                                 std::wstring_view objectClass)
    : dispatch_(dispatch),
      tables_(tables),
      names_(tables.try_emplace(std::wstring(objectClass)).first->second) {}

LateBoundObject::~LateBoundObject() { dispatch_->Release(); }

Value LateBoundObject::call(std::wstring_view name, std::span<const Argument> arguments,
                            std::wstring_view resultClass) {
    CallArguments variants(arguments);
    DISPPARAMS parameters{variants.data(), nullptr, variants.count(), 0};
    OwnedVariant result;
    invoke(name, DISPATCH_METHOD | DISPATCH_PROPERTYGET, parameters, &result);
    variants.writeBack();
    return valueOf(result, resultClass);
}

void LateBoundObject::put(std::wstring_view name, const Argument& value) {
    CallArguments variants({&value, 1});
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{variants.data(), &named, variants.count(), 1};
    invoke(name, DISPATCH_PROPERTYPUT, parameters, nullptr);
}

DISPID LateBoundObject::lookUp(std::wstring_view name) {
    if (const auto known = names_.find(name); known != names_.end()) return known->second;
    std::wstring spelled(name);
    LPOLESTR names[] = {spelled.data()};
    DISPID id = DISPID_UNKNOWN;
    const HRESULT result = callPatiently([&] {
        const CallOut out;
        return dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id);
    });
    if (FAILED(result)) {
        Failure none;
        throw callError(result, name, none);
    }
    names_.emplace(std::move(spelled), id);
    return id;
}

void LateBoundObject::invoke(std::wstring_view name, WORD flags, DISPPARAMS& parameters,
                             VARIANT* result) {
    Failure failure;
    const auto invokeOnce = [&] {
        const DISPID id = lookUp(name);
        return callPatiently([&] {
            const CallOut out;
            return dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result,
                                     &failure, nullptr);
        });
    };
    HRESULT outcome = invokeOnce();
    if (outcome == DISP_E_MEMBERNOTFOUND) {
        // The object may be of another kind than those that the name was looked up for.
        names_.erase(names_.find(name));
        outcome = invokeOnce();
    }
    if (FAILED(outcome)) throw callError(outcome, name, failure);
}

Value LateBoundObject::valueOf(VARIANT& variant, std::wstring_view objectClass) {
    switch (V_VT(&variant)) {
        case VT_BSTR:
            return std::wstring(viewOf(V_BSTR(&variant)));
        case VT_BOOL:
            return V_BOOL(&variant) == VARIANT_TRUE;
        case VT_I2:
            return static_cast<std::int16_t>(V_I2(&variant));
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&variant));
        case VT_DISPATCH:
            if (!V_DISPATCH(&variant)) return ObjectPtr();
            V_DISPATCH(&variant)->AddRef();
            return std::make_shared<LateBoundObject>(V_DISPATCH(&variant), tables_, objectClass);
        default:
            return std::monostate();
    }
}
