#include "platform/win32/com/late_bound_object.h"

#include <oleauto.h>

#include "platform/win32/com/variant_values.h"

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

}  // namespace

LateBoundObject::LateBoundObject(ComPtr<IDispatch> dispatch, LateBinding& binding,
                                 std::wstring_view objectClass)
    : dispatch_(std::move(dispatch)),
      binding_(binding),
      names_(binding.tables.try_emplace(std::wstring(objectClass)).first->second) {}

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
    const CallResult result = binding_.patience.call(
        [&] { return dispatch_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &id); });
    if (FAILED(result)) throw callError({.result = result, .name = name});
    names_.emplace(std::move(spelled), id);
    return id;
}

void LateBoundObject::invoke(std::wstring_view name, WORD flags, DISPPARAMS& parameters,
                             VARIANT* result) {
    ServersWords words;
    const auto invokeOnce = [&] {
        const DISPID id = lookUp(name);
        return binding_.patience.call([&] {
            return dispatch_->Invoke(id, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters, result,
                                     &words, nullptr);
        });
    };
    CallResult outcome = invokeOnce();
    if (outcome == DISP_E_MEMBERNOTFOUND) {
        // The object may be of another kind than those that the name was looked up for.
        names_.erase(names_.find(name));
        outcome = invokeOnce();
    }
    if (SUCCEEDED(outcome)) return;
    const std::wstring description = words.description();
    throw callError({outcome, name, words.scode, description});
}

Value LateBoundObject::valueOf(const VARIANT& variant, std::wstring_view objectClass) {
    switch (V_VT(&variant)) {
        case VT_BSTR:
            return textIn(V_BSTR(&variant));
        case VT_BOOL:
            return V_BOOL(&variant) == VARIANT_TRUE;
        case VT_I2:
            return static_cast<std::int16_t>(V_I2(&variant));
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&variant));
        case VT_DISPATCH:
            if (!V_DISPATCH(&variant)) return ObjectPtr();
            return std::make_shared<LateBoundObject>(ComPtr(V_DISPATCH(&variant)), binding_,
                                                     objectClass);
        default:
            return std::monostate();
    }
}
