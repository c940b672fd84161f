#include "text.h"

#include <algorithm>
#include <cstdint>

#include "common/encoding.h"
#include "common/runtime_error.h"

std::int32_t parseNumber(std::wstring_view text) {
    if (text.empty() || text.size() > 9) return -1;
    std::int32_t number = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9') return -1;
        number = number * 10 + (digit - L'0');
    }
    return number;
}

std::string toUtf8(std::wstring text) {
    std::string utf8;
    try {
        appendUtf8(utf8, text);
    } catch (const RuntimeError&) {
        std::ranges::replace_if(
            text, [](wchar_t unit) { return (unit & 0xF800) == 0xD800; }, L'\xFFFD');
        appendUtf8(utf8, text);
    }
    return utf8;
}
