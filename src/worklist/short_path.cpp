#include "worklist/short_path.h"

#include <algorithm>

#include "common/runtime_error.h"

namespace {

constexpr int kMostBackslashes = 16;

/// Just past the backslash of this zero-based rank, which must exist.
std::size_t afterBackslash(std::wstring_view path, int rank) {
    std::size_t next = 0;
    for (int i = 0; i <= rank; ++i) next = path.find(L'\\', next) + 1;
    return next;
}

}  // namespace

std::wstring upwards(int levels) {
    if (levels == 0) return {};
    std::wstring result = L"\\";
    for (int level = 0; level < levels; ++level) result += L"..\\";
    return result;
}

std::wstring shortPath(int depth, std::wstring_view path) {
    // The last character is never examined: a trailing backslash hides no level.
    const std::wstring_view examined = path.substr(0, path.empty() ? 0 : path.size() - 1);
    const auto backslashes = std::ranges::count(examined, L'\\');
    if (backslashes > kMostBackslashes) {
        throw errors::subscriptOutOfRange(L"Niveaux d'un chemin raccourci : 16 au plus.");
    }

    const int levels = std::min(static_cast<int>(backslashes) - 1, depth);
    if (levels < 1) return {};
    std::wstring result(path.substr(0, 2));
    result += upwards(levels);
    result += path.substr(afterBackslash(path, levels));
    return result;
}

void addShownPath(std::wstring& line, std::wstring_view path, int depth) {
    if (depth > 0) {
        line += shortPath(depth, path);
    } else {
        line += path;
    }
}
