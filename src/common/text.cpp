#include "common/text.h"

#include <algorithm>

#include "common/letter_case.h"

namespace {

template <class View>
View withoutBlanksAround(View text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == View::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

template <class View>
View takeLineOf(View& rest) {
    // One comparison tells almost all characters.
    const auto isLineEnd = [](auto c) { return c <= '\r' && (c == '\n' || c == '\r'); };
    const auto end = std::ranges::find_if(rest, isLineEnd);
    const View line(rest.begin(), end);
    rest.remove_prefix(line.size());
    const bool two = rest.size() > 1 && rest[0] == '\r' && rest[1] == '\n';
    rest.remove_prefix(std::min<std::size_t>(rest.size(), two ? 2 : 1));
    return line;
}

}  // namespace

std::wstring_view trimmed(std::wstring_view text) { return withoutBlanksAround(text); }
std::string_view trimmed(std::string_view text) { return withoutBlanksAround(text); }

bool equalIgnoringCase(std::wstring_view a, std::wstring_view b) {
    return a.size() == b.size() && (a == b || upperCase(a) == upperCase(b));
}

std::wstring_view takeLine(std::wstring_view& rest) { return takeLineOf(rest); }
std::string_view takeLine(std::string_view& rest) { return takeLineOf(rest); }
