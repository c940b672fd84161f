#include "pickers/directory_listing.h"

#include <algorithm>
#include <utility>

#include "platform/files.h"
#include "platform/letter_case.h"

void sortNames(std::vector<std::wstring>& names) {
    std::vector<std::pair<std::wstring, std::wstring>> keyed;
    keyed.reserve(names.size());
    for (std::wstring& name : names) {
        std::wstring key = upperCase(name);
        keyed.emplace_back(std::move(key), std::move(name));
    }
    std::ranges::sort(keyed);
    std::ranges::transform(keyed, names.begin(),
                           [](auto& entry) { return std::move(entry.second); });
}

std::vector<std::wstring> subdirectoryNames(Files& files, const std::wstring& directory) {
    std::vector<std::wstring> names;
    files.visit(directory, [&](const DirectoryEntry& entry) {
        if (entry.isDirectory && !entry.isHidden) names.emplace_back(entry.name);
    });
    sortNames(names);
    return names;
}

bool isDriveRoot(std::wstring_view directory) {
    return directory.size() == 3 && directory[1] == L':' && directory[2] == L'\\';
}

std::wstring reportedPath(std::wstring_view directory) {
    while (directory.ends_with(L'\\') && !isDriveRoot(directory)) directory.remove_suffix(1);
    std::wstring path(directory);
    if (path.size() == 2 && path[1] == L':') path += L'\\';
    return path;
}

std::wstring childPath(const std::wstring& directory, std::wstring_view name) {
    std::wstring path = directory;
    if (!path.ends_with(L'\\')) path += L'\\';
    path += name;
    return path;
}

std::wstring parentPath(const std::wstring& directory) {
    const std::size_t backslash = directory.find_last_of(L'\\');
    if (isDriveRoot(directory) || backslash == std::wstring::npos || backslash < 2) {
        return directory;
    }
    // The share is the root of a network path.
    if (directory.starts_with(L"\\\\") && directory.find(L'\\', 2) == backslash) return directory;
    return reportedPath(directory.substr(0, backslash + 1));
}
