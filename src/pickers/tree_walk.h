#pragma once

#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "pickers/directory_listing.h"
#include "ports/search.h"

enum class WalkEnd { Complete, Interrupted };

/// Walks a directory or the tree below it: each directory before its sub-directories, these in
/// ascending name order. A link to a directory that is already open on the way down is passed over.
///
/// `visit` is given each directory's path and the names in it that `wanted` accepts, in order.
/// `wanted` is called by several threads at once, even past the end of the walk: it owns all that
/// it looks at. Raises 70 or 76 where a directory can't be read, and what `visit` and the watch
/// raise. Interrupted: the watch ended.
using DirectoryVisitor =
    std::function<void(const std::wstring& directory, const std::vector<std::wstring>& names)>;
[[nodiscard]] WalkEnd walkTree(const SearchServices& services, const std::wstring& directory,
                               bool withSubdirectories, const FileFilter& wanted,
                               const DirectoryVisitor& visit);

/// For walks that look at directories alone.
inline bool noFile(std::wstring_view) { return false; }

/// A directory's sub-directories in order, but those that the Explorer keeps from its users; none
/// when the watch ended. Raises 70 or 76, and what the watch raises.
std::optional<std::vector<Subdirectory>> readSubdirectories(const SearchServices& services,
                                                            const std::wstring& directory);
