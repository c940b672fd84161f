#include "text.h"

#include <windows.h>

bool sameText(std::wstring_view left, std::wstring_view right) {
    return CompareStringOrdinal(left.data(), static_cast<int>(left.size()), right.data(),
                                static_cast<int>(right.size()), TRUE) == CSTR_EQUAL;
}

long parseNumber(std::wstring_view text) {
    if (text.empty() || text.size() > 9) return -1;
    long number = 0;
    for (const wchar_t digit : text) {
        if (digit < L'0' || digit > L'9') return -1;
        number = number * 10 + (digit - L'0');
    }
    return number;
}

std::string toUtf8(std::wstring_view text) {
    const int length = static_cast<int>(text.size());
    const int size =
        WideCharToMultiByte(CP_UTF8, 0, text.data(), length, nullptr, 0, nullptr, nullptr);
    std::string bytes(static_cast<size_t>(size), '\0');
    WideCharToMultiByte(CP_UTF8, 0, text.data(), length, bytes.data(), size, nullptr, nullptr);
    return bytes;
}
