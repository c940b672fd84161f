#include "call.h"

#include <cstdint>
#include <utility>

VARIANT& Call::argument(UINT index) const {
    return parameters_.rgvarg[parameters_.cArgs - 1 - index];
}

VARIANT Call::converted(UINT index, VARTYPE type) const {
    VARIANT value{};
    // Dereferences by-reference arguments too.
    const HRESULT changed = VariantChangeType(&value, &argument(index), 0, type);
    if (FAILED(changed)) throw CallError{DISP_E_TYPEMISMATCH, count() - 1 - index};
    return value;
}

std::wstring Call::text(UINT index) const {
    VARIANT value = converted(index, VT_BSTR);
    std::wstring text(value.bstrVal, SysStringLen(value.bstrVal));
    VariantClear(&value);
    return text;
}

std::int32_t Call::integer(UINT index) const { return converted(index, VT_I4).lVal; }

bool Call::boolean(UINT index) const { return converted(index, VT_BOOL).boolVal != VARIANT_FALSE; }

void Call::giveBack(UINT index, std::int32_t value) const {
    const VARIANT& target = argument(index);
    switch (target.vt) {
        case VT_BYREF | VT_I2:
            *target.piVal = static_cast<SHORT>(value);
            break;
        case VT_BYREF | VT_I4:
        case VT_BYREF | VT_UI4:
        case VT_BYREF | VT_INT:
        case VT_BYREF | VT_UINT:
            *target.plVal = value;
            break;
        case VT_BYREF | VT_VARIANT:
            VariantClear(target.pvarVal);
            target.pvarVal->vt = VT_I4;
            target.pvarVal->lVal = value;
            break;
        default:
            break;
    }
}

void Call::answer(const std::wstring& text) {
    VariantClear(&answer_);
    answer_.vt = VT_BSTR;
    answer_.bstrVal = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
}

void Call::answer(std::int32_t number) {
    VariantClear(&answer_);
    answer_.vt = VT_I4;
    answer_.lVal = number;
}

void Call::answer(bool yes) {
    VariantClear(&answer_);
    answer_.vt = VT_BOOL;
    answer_.boolVal = yes ? VARIANT_TRUE : VARIANT_FALSE;
}

void Call::answer(IDispatch* object) {
    VariantClear(&answer_);
    answer_.vt = VT_DISPATCH;
    answer_.pdispVal = object;
    if (object) object->AddRef();
}

void Call::tell(std::wstring news, const wchar_t* outcome) {
    news_ = std::move(news);
    outcome_ = outcome;
}

void Call::deliver(VARIANT* result) {
    if (result) *result = std::exchange(answer_, VARIANT{});
}
