#include "bare_calls.h"

#include <windows.h>

#include <algorithm>
#include <oleauto.h>

#include "setting.h"

DISPID BareObject::numberOf(const wchar_t* name) const {
    std::wstring spelled = name;
    LPOLESTR names[] = {spelled.data()};
    DISPID member = DISPID_UNKNOWN;
    require(SUCCEEDED(object_->GetIDsOfNames(IID_NULL, names, 1, LOCALE_USER_DEFAULT, &member)),
            "a member that the session knows");
    return member;
}

IDispatch* BareObject::invoke(DISPID member, std::vector<VARIANT> arguments, WORD flags) const {
    std::ranges::reverse(arguments);
    DISPID named = DISPID_PROPERTYPUT;
    DISPPARAMS parameters{arguments.data(), nullptr, static_cast<UINT>(arguments.size()), 0};
    if (flags == DISPATCH_PROPERTYPUT) {
        parameters.rgdispidNamedArgs = &named;
        parameters.cNamedArgs = 1;
    }
    VARIANT answer;
    VariantInit(&answer);
    EXCEPINFO failure{};
    require(SUCCEEDED(object_->Invoke(member, IID_NULL, LOCALE_USER_DEFAULT, flags, &parameters,
                                      flags == DISPATCH_PROPERTYPUT ? nullptr : &answer, &failure,
                                      nullptr)),
            "a call that succeeds");
    for (VARIANT& argument : arguments) VariantClear(&argument);
    if (V_VT(&answer) == VT_DISPATCH) return V_DISPATCH(&answer);
    VariantClear(&answer);
    return nullptr;
}

IDispatch* runningSession() {
    CLSID id;
    IUnknown* object = nullptr;
    IDispatch* session = nullptr;
    require(
        SUCCEEDED(CLSIDFromProgID(L"SldWorks.Application", &id)) &&
            SUCCEEDED(GetActiveObject(id, nullptr, &object)) &&
            SUCCEEDED(object->QueryInterface(IID_IDispatch, reinterpret_cast<void**>(&session))),
        "a running session");
    object->Release();
    return session;
}

namespace {

VARIANT variantOf(VARTYPE type) {
    VARIANT variant;
    VariantInit(&variant);
    V_VT(&variant) = type;
    return variant;
}

}  // namespace

VARIANT text(const std::wstring& value) {
    VARIANT variant = variantOf(VT_BSTR);
    V_BSTR(&variant) = SysAllocString(value.c_str());
    return variant;
}

VARIANT flag(bool value) {
    VARIANT variant = variantOf(VT_BOOL);
    V_BOOL(&variant) = value ? VARIANT_TRUE : VARIANT_FALSE;
    return variant;
}

VARIANT number(LONG value) {
    VARIANT variant = variantOf(VT_I4);
    V_I4(&variant) = value;
    return variant;
}

VARIANT reference(BSTR* value) {
    VARIANT variant = variantOf(VT_BYREF | VT_BSTR);
    V_BSTRREF(&variant) = value;
    return variant;
}

VARIANT reference(SHORT* value) {
    VARIANT variant = variantOf(VT_BYREF | VT_I2);
    V_I2REF(&variant) = value;
    return variant;
}

VARIANT reference(LONG* value) {
    VARIANT variant = variantOf(VT_BYREF | VT_I4);
    V_I4REF(&variant) = value;
    return variant;
}
