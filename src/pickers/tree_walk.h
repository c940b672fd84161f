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
/// `visit` is called with each directory's path and, in order, the names in it that `wanted`
/// accepts. `wanted` is called by several threads at once, even after the walk has ended, so it
/// owns all that it looks at. Raises 70 or 76 when a directory can't be read, and what `visit` and
/// the watch raise. Interrupted: by the watch.
using DirectoryVisitor =
    std::function<void(const std::wstring& directory, const std::vector<std::wstring>& names)>;
[[nodiscard]] WalkEnd walkTree(const SearchServices& services, const std::wstring& directory,
                               bool withSubdirectories, const FileFilter& wanted,
                               const DirectoryVisitor& visit);

/// The filter of walks that look for directories only.
inline bool noFile(std::wstring_view) { return false; }

/// A directory's sub-directories in order, without those that even the Explorer hides always;
/// nothing when the watch ended the search. Raises 70 or 76, and what the watch raises.
std::optional<std::vector<Subdirectory>> readSubdirectories(const SearchServices& services,
                                                            const std::wstring& directory);
