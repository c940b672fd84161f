#include "platform/win32/com/variant_values.h"

#include <new>
#include <oleauto.h>

BSTR makeBstr(const std::wstring& text) {
    BSTR result = SysAllocStringLen(text.data(), static_cast<UINT>(text.size()));
    if (!result) throw std::bad_alloc();
    return result;
}

CallArguments::CallArguments(std::span<const Argument> arguments) {
    // The VARIANTs point into this table, which therefore must not move.
    texts_.reserve(arguments.size());
    variants_.reserve(arguments.size());
    for (std::size_t i = arguments.size(); i-- > 0;) variants_.push_back(convert(arguments[i]));
}

CallArguments::~CallArguments() {
    for (VARIANT& variant : variants_) VariantClear(&variant);
    for (const TextReference& reference : texts_) SysFreeString(reference.text);
}

VARIANT CallArguments::convert(const Argument& argument) {
    VARIANT variant;
    VariantInit(&variant);
    if (const auto* text = std::get_if<std::wstring>(&argument)) {
        V_VT(&variant) = VT_BSTR;
        V_BSTR(&variant) = makeBstr(*text);
    } else if (const auto* flag = std::get_if<bool>(&argument)) {
        V_VT(&variant) = VT_BOOL;
        V_BOOL(&variant) = *flag ? VARIANT_TRUE : VARIANT_FALSE;
    } else if (const auto* shortNumber = std::get_if<std::int16_t>(&argument)) {
        V_VT(&variant) = VT_I2;
        V_I2(&variant) = *shortNumber;
    } else if (const auto* number = std::get_if<std::int32_t>(&argument)) {
        V_VT(&variant) = VT_I4;
        V_I4(&variant) = *number;
    } else if (auto* const* textReference = std::get_if<std::wstring*>(&argument)) {
        texts_.push_back({*textReference, makeBstr(**textReference)});
        V_VT(&variant) = VT_BYREF | VT_BSTR;
        V_BSTRREF(&variant) = &texts_.back().text;
    } else if (auto* const* shortReference = std::get_if<std::int16_t*>(&argument)) {
        V_VT(&variant) = VT_BYREF | VT_I2;
        V_I2REF(&variant) = *shortReference;
    } else if (auto* const* reference = std::get_if<std::int32_t*>(&argument)) {
        V_VT(&variant) = VT_BYREF | VT_I4;
        V_I4REF(&variant) = reinterpret_cast<LONG*>(*reference);
    }
    return variant;
}

void CallArguments::writeBack() {
    for (const TextReference& reference : texts_) {
        reference.target->assign(reference.text ? reference.text : L"",
                                 SysStringLen(reference.text));
    }
}
