#include "contract/machine.h"

#include <algorithm>

std::vector<std::wstring> namesIn(Files& files, const std::wstring& directory) {
    std::vector<std::wstring> names;
    files.visit(directory, [&](const DirectoryEntry& entry) {
        names.push_back((entry.isLeftOut ? L"?" : L"") + std::wstring(entry.name) +
                        (entry.isDirectory ? L"\\" : L""));
    });
    std::ranges::sort(names);
    return names;
}
