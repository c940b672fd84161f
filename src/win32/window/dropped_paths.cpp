#include "win32/window/dropped_paths.h"

std::vector<std::wstring> pathsOf(HDROP files) {
    constexpr UINT kHowMany = 0xFFFFFFFF;
    std::vector<std::wstring> paths(DragQueryFileW(files, kHowMany, nullptr, 0));
    for (UINT i = 0; i < paths.size(); ++i) {
        // Its length does not count the zero at the end, the room asked for does.
        const UINT length = DragQueryFileW(files, i, nullptr, 0);
        paths[i].resize(length);
        DragQueryFileW(files, i, paths[i].data(), length + 1);
    }
    return paths;
}
