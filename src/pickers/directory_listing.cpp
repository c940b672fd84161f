#include "pickers/directory_listing.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "common/letter_case.h"
#include "platform/files.h"

namespace {

struct SortKey {
    std::wstring folded;
    std::wstring_view name;
    std::size_t place;

    bool operator<(const SortKey& other) const {
        return std::tie(folded, name) < std::tie(other.folded, other.name);
    }
};

template <class Item, class NameOf>
void sortItems(std::vector<Item>& items, NameOf nameOf) {
    std::vector<SortKey> keys;
    keys.reserve(items.size());
    for (std::size_t i = 0; i < items.size(); ++i) {
        keys.push_back({upperCase(nameOf(items[i])), nameOf(items[i]), i});
    }
    std::sort(keys.begin(), keys.end());
    std::vector<Item> sorted;
    sorted.reserve(items.size());
    for (const SortKey& key : keys) sorted.push_back(std::move(items[key.place]));
    items = std::move(sorted);
}

}  // namespace

void sortByName(std::vector<std::wstring>& names) {
    sortItems(names, [](const std::wstring& name) -> const std::wstring& { return name; });
}

void sortByName(std::vector<Subdirectory>& subdirectories) {
    sortItems(subdirectories,
              [](const Subdirectory& one) -> const std::wstring& { return one.name; });
}

DirectoryContents listContents(Files& files, const std::wstring& directory,
                               const FileFilter& wanted) {
    DirectoryContents contents;
    files.visit(directory, [&](const DirectoryEntry& entry) {
        if (entry.isLeftOut) return;
        if (entry.isDirectory) {
            contents.subdirectories.push_back({std::wstring(entry.name), entry.isLink});
        } else if (wanted(entry.name)) {
            contents.files.emplace_back(entry.name);
        }
    });
    sortByName(contents.files);
    sortByName(contents.subdirectories);
    return contents;
}

std::vector<Subdirectory> listSubdirectories(Files& files, const std::wstring& directory) {
    return listContents(files, directory, [](std::wstring_view) { return false; }).subdirectories;
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
