#include "worklist/short_path.h"

#include <algorithm>

#include "common/numbers.h"
#include "common/runtime_error.h"

namespace {

constexpr long kMostBackslashes = 16;

/// Just past the backslash of this zero-based rank, which must exist.
std::size_t afterBackslash(std::wstring_view path, long rank) {
    std::size_t next = 0;
    for (long i = 0; i <= rank; ++i) next = path.find(L'\\', next) + 1;
    return next;
}

}  // namespace

std::wstring upwards(int k) {
    if (k == 0) return {};
    std::wstring result = L"\\";
    for (int level = 0; level < k; ++level) result += L"..\\";
    return result;
}

std::wstring shortPath(std::wstring_view depth, std::wstring_view path) {
    // The last character is never examined: a trailing backslash hides no level.
    const std::wstring_view examined = path.substr(0, path.empty() ? 0 : path.size() - 1);
    const long backslashes = static_cast<long>(std::ranges::count(examined, L'\\'));
    if (backslashes > kMostBackslashes) throw errors::subscriptOutOfRange();

    const long levels = std::min(backslashes - 1, numericValue(depth));
    if (levels < 1) return {};
    std::wstring result(path.substr(0, 2));
    result += upwards(static_cast<int>(levels));
    result += path.substr(afterBackslash(path, levels));
    return result;
}
