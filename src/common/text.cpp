#include "common/text.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>

namespace {

template <class View>
View withoutBlanksAround(View text) {
    const std::size_t first = text.find_first_not_of(' ');
    if (first == View::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

template <class Character>
bool isLineEnd(Character c) {
    return c == '\n' || c == '\r';
}

std::size_t lineLength(std::wstring_view text) {
    return static_cast<std::size_t>(std::ranges::find_if(text, isLineEnd<wchar_t>) - text.begin());
}

/// The place, among eight bytes, of the first one that may end a line; 8 for none. In the
/// subtraction a byte below 14 borrows its highest bit, and apart from such bytes only some that
/// follow one do.
std::size_t firstControl(const char* bytes) {
    static_assert(std::endian::native == std::endian::little);
    constexpr std::uint64_t kEach = 0x0101010101010101U;
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, sizeof word);
    const std::uint64_t borrowed = (word - kEach * ('\r' + 1)) & ~word & (kEach * 0x80);
    return static_cast<std::size_t>(std::countr_zero(borrowed)) / 8;
}

// Eight bytes at a time, since lists are long.
std::size_t lineLength(std::string_view text) {
    std::size_t length = 0;
    while (length + 8 <= text.size()) {
        const std::size_t plain = firstControl(text.data() + length);
        length += plain;
        if (plain == 8) continue;
        if (isLineEnd(text[length])) return length;
        ++length;
    }
    while (length < text.size() && !isLineEnd(text[length])) ++length;
    return length;
}

template <class View>
View takeLineOf(View& rest) {
    const View line = rest.substr(0, lineLength(rest));
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
