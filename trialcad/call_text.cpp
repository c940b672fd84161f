#include "call_text.h"

#include <cwchar>

namespace {

struct NumberType {
    VARTYPE type;
    const wchar_t* suffix;
};

constexpr NumberType kNumberTypes[] = {
    {VT_I1, L":i1"},   {VT_I2, L":i2"},     {VT_I4, L":i4"},   {VT_I8, L":i8"},
    {VT_UI1, L":ui1"}, {VT_UI2, L":ui2"},   {VT_UI4, L":ui4"}, {VT_UI8, L":ui8"},
    {VT_INT, L":int"}, {VT_UINT, L":uint"}, {VT_R4, L":r4"},   {VT_R8, L":r8"},
};

std::wstring escaped(wchar_t unit) {
    wchar_t text[8];
    std::swprintf(text, 8, L"\\u%04X", static_cast<unsigned>(unit));
    return text;
}

bool startsPair(const wchar_t* text, UINT left) {
    return left > 1 && IS_SURROGATE_PAIR(text[0], text[1]);
}

std::wstring quoted(BSTR text) {
    const UINT length = SysStringLen(text);
    std::wstring result = L"\"";
    for (UINT i = 0; i < length; ++i) {
        const wchar_t unit = text[i];
        if (startsPair(text + i, length - i)) {
            result.append(text + i, 2);
            ++i;
        } else if (unit < L' ' || IS_HIGH_SURROGATE(unit) || IS_LOW_SURROGATE(unit)) {
            result += escaped(unit);
        } else {
            if (unit == L'"') result += L'"';
            result += unit;
        }
    }
    return result + L'"';
}

std::wstring numberText(VARIANT& value) {
    for (const NumberType& number : kNumberTypes) {
        if (number.type != value.vt) continue;
        VARIANT text{};
        if (FAILED(VariantChangeTypeEx(&text, &value, LOCALE_INVARIANT, 0, VT_BSTR))) break;
        std::wstring result = text.bstrVal;
        VariantClear(&text);
        return result + number.suffix;
    }
    return L"?:vt" + std::to_wstring(value.vt);
}

std::wstring valueText(VARIANT& value) {
    switch (value.vt) {
        case VT_EMPTY:
            return L"Empty";
        case VT_NULL:
            return L"Null";
        case VT_BSTR:
            return quoted(value.bstrVal);
        case VT_BOOL:
            return value.boolVal ? L"True" : L"False";
        case VT_DISPATCH:
        case VT_UNKNOWN:
            return value.punkVal ? L"Object" : L"Nothing";
        case VT_ERROR:
            if (value.scode == DISP_E_PARAMNOTFOUND) return L"Missing";
            [[fallthrough]];
        default:
            return numberText(value);
    }
}

std::wstring argumentText(VARIANT& value) {
    if (!(value.vt & VT_BYREF)) return valueText(value);
    if (value.vt == (VT_BYREF | VT_VARIANT)) {
        return L"&Variant(" + argumentText(*value.pvarVal) + L")";
    }
    VARIANT pointedTo{};
    if (FAILED(VariantCopyInd(&pointedTo, &value))) return L"&?:vt" + std::to_wstring(value.vt);
    std::wstring result = L"&" + valueText(pointedTo);
    VariantClear(&pointedTo);
    return result;
}

}  // namespace

std::wstring argumentsText(const Call& call) {
    std::wstring result;
    for (UINT i = 0; i < call.count(); ++i) {
        if (i > 0) result += L", ";
        result += argumentText(call.argument(i));
    }
    return result;
}
