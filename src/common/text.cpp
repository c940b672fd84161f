#include "common/text.h"

#include <algorithm>

#include "platform/letter_case.h"

std::wstring_view trimmed(std::wstring_view text) {
    const std::size_t first = text.find_first_not_of(L' ');
    if (first == std::wstring_view::npos) return {};
    return text.substr(first, text.find_last_not_of(L' ') - first + 1);
}

bool equalIgnoringCase(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && (a == b || upperCase(a) == upperCase(b));
}

std::wstring_view takeLine(std::wstring_view& rest) {
    // One comparison tells almost all characters.
    const auto isLineEnd = [](wchar_t c) { return c <= L'\r' && (c == L'\n' || c == L'\r'); };
    const auto at = std::ranges::find_if(rest, isLineEnd);
    const std::size_t end =
        at == rest.end() ? std::wstring_view::npos : static_cast<std::size_t>(at - rest.begin());
    if (end == std::wstring_view::npos) {
        const std::wstring_view last = rest;
        rest = {};
        return last;
    }
    const std::wstring_view line = rest.substr(0, end);
    rest.remove_prefix(rest.substr(end, 2) == L"\r\n" ? end + 2 : end + 1);
    return line;
}
