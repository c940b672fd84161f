#include "win32/com/variant_values.h"

#include <new>
#include <oleauto.h>
#include <utility>

OwnedVariant::OwnedVariant() { VariantInit(this); }

OwnedVariant::~OwnedVariant() { VariantClear(this); }

OwnedBstr::OwnedBstr(const std::wstring& text)
    : text_(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (!text_) throw std::bad_alloc();
}

OwnedBstr::~OwnedBstr() { SysFreeString(text_); }

BSTR OwnedBstr::release() { return std::exchange(text_, nullptr); }

std::wstring textIn(BSTR text) { return text ? std::wstring(text, SysStringLen(text)) : L""; }

Value valueIn(const VARIANT& variant) {
    switch (V_VT(&variant)) {
        case VT_BSTR:
            return textIn(V_BSTR(&variant));
        case VT_BOOL:
            return V_BOOL(&variant) == VARIANT_TRUE;
        case VT_I2:
            return static_cast<std::int16_t>(V_I2(&variant));
        case VT_I4:
            return static_cast<std::int32_t>(V_I4(&variant));
        default:
            return std::monostate();
    }
}

CallArguments::CallArguments(std::span<const Argument> arguments) : variants_(arguments.size()) {
    // The VARIANTs point into this table, which therefore must not move.
    texts_.reserve(arguments.size());
    auto variant = variants_.rbegin();
    for (const Argument& argument : arguments) {
        std::visit([&](const auto& value) { set(*variant, value); }, argument);
        ++variant;
    }
}

void CallArguments::set(VARIANT& variant, const std::wstring& text) {
    V_BSTR(&variant) = OwnedBstr(text).release();
    V_VT(&variant) = VT_BSTR;
}

void CallArguments::set(VARIANT& variant, bool flag) {
    V_VT(&variant) = VT_BOOL;
    V_BOOL(&variant) = flag ? VARIANT_TRUE : VARIANT_FALSE;
}

void CallArguments::set(VARIANT& variant, std::int16_t number) {
    V_VT(&variant) = VT_I2;
    V_I2(&variant) = number;
}

void CallArguments::set(VARIANT& variant, std::int32_t number) {
    V_VT(&variant) = VT_I4;
    V_I4(&variant) = number;
}

void CallArguments::set(VARIANT& variant, std::wstring* text) {
    texts_.push_back({text, OwnedBstr(*text)});
    V_VT(&variant) = VT_BYREF | VT_BSTR;
    V_BSTRREF(&variant) = texts_.back().text.address();
}

void CallArguments::set(VARIANT& variant, std::int16_t* number) {
    V_VT(&variant) = VT_BYREF | VT_I2;
    V_I2REF(&variant) = number;
}

void CallArguments::set(VARIANT& variant, std::int32_t* number) {
    V_VT(&variant) = VT_BYREF | VT_I4;
    V_I4REF(&variant) = reinterpret_cast<LONG*>(number);
}

void CallArguments::writeBack() {
    for (TextReference& reference : texts_) *reference.target = textIn(*reference.text.address());
}
