// Any path at any depth, the first byte spelling the depth's last digit.

#include <algorithm>
#include <string>

#include "fuzz_input.h"
#include "worklist/short_path.h"

namespace {

/// The shortened path hides whole levels: the drive, the markers, then an end of the path that
/// begins after one of its backslashes.
void requireShortened(const std::wstring& path, const std::wstring& shown, long mostLevels) {
    require(shown.starts_with(path.substr(0, 2) + L"\\..\\"));
    std::size_t next = 3;
    long levels = 0;
    while (levels < mostLevels && shown.compare(next, 3, L"..\\") == 0) {
        next += 3;
        ++levels;
        const std::wstring rest = shown.substr(next);
        if (path.ends_with(L"\\" + rest)) return;
    }
    require(false);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0) return 0;
    const int depth = data[0] % 12;
    const std::wstring path = textOfBytes(data + 1, size - 1);
    const long backslashes = path.empty() ? 0 : std::count(path.begin(), path.end() - 1, L'\\');

    std::wstring shown;
    const int error = raised([&] { shown = shortPath(depth, path); });
    require(error == (backslashes > 16 ? 9 : 0));
    if (error != 0) return 0;
    require(shown.empty() == (depth == 0 || backslashes < 2));
    if (!shown.empty()) requireShortened(path, shown, depth);
    return 0;
}
