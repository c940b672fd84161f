#include "pickers/open_directories.h"

#include <algorithm>

bool OpenDirectories::leadsBack(const std::wstring& link) {
    const DirectoryId target = identify_(link);
    return std::ranges::any_of(way_, [&](Open& open) {
        if (!open.id) open.id = identify_(open.path);
        return *open.id == target;
    });
}
