#include "common/numbers.h"

#include <algorithm>
#include <charconv>
#include <iterator>
#include <limits>

#include "common/runtime_error.h"
#include "common/text.h"

namespace {

bool isDigit(wchar_t c) { return c >= L'0' && c <= L'9'; }

std::size_t digitsAt(std::wstring_view text, std::size_t from) {
    std::size_t end = from;
    while (end < text.size() && isDigit(text[end])) ++end;
    return end - from;
}

/// Compares decimals with one half: negative below, 0 for exactly half, positive above.
int againstHalf(std::wstring_view decimals) {
    if (decimals.empty() || decimals[0] < L'5') return -1;
    if (decimals[0] > L'5') return 1;
    return decimals.find_first_not_of(L'0', 1) == std::wstring_view::npos ? 0 : 1;
}

std::int32_t rounded(std::int32_t whole, std::wstring_view decimals) {
    const int half = againstHalf(decimals);
    return half > 0 || (half == 0 && whole % 2 == 1) ? whole + 1 : whole;
}

RuntimeError noNumber(std::wstring_view text) {
    return errors::typeMismatch(L"un nombre était attendu au lieu de \"" + std::wstring(text) +
                                L"\"");
}

}  // namespace

std::int32_t numericValue(std::wstring_view text) {
    constexpr std::int32_t kLargest = std::numeric_limits<std::int32_t>::max();
    std::int32_t value = 0;
    for (std::size_t i = 0; i < text.size() && isDigit(text[i]); ++i) {
        const std::int32_t digit = text[i] - L'0';
        if (value > (kLargest - digit) / 10) return kLargest;
        value = value * 10 + digit;
    }
    return value;
}

std::int16_t wholeNumber(std::wstring_view text) {
    std::wstring_view rest = trimmed(text);
    const bool negative = !rest.empty() && rest[0] == L'-';
    if (negative || (!rest.empty() && rest[0] == L'+')) rest.remove_prefix(1);

    const std::wstring_view whole = rest.substr(0, digitsAt(rest, 0));
    rest.remove_prefix(whole.size());
    std::wstring_view decimals;
    if (!rest.empty() && (rest[0] == L'.' || rest[0] == L',')) {
        decimals = rest.substr(1, digitsAt(rest, 1));
        rest.remove_prefix(1 + decimals.size());
    }
    if (!rest.empty() || (whole.empty() && decimals.empty())) throw noNumber(text);

    constexpr std::int32_t kPastAll = 1 << 20;
    const std::int32_t magnitude = rounded(std::min(numericValue(whole), kPastAll), decimals);
    const std::int32_t value = negative ? -magnitude : magnitude;
    if (value < std::numeric_limits<std::int16_t>::min() ||
        value > std::numeric_limits<std::int16_t>::max()) {
        throw errors::overflow();
    }
    return static_cast<std::int16_t>(value);
}

std::wstring decimal(std::int64_t number) {
    char digits[24];
    const auto end = std::to_chars(std::begin(digits), std::end(digits), number).ptr;
    return {digits, end};
}
