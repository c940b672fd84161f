#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

class Files;

struct Subdirectory {
    std::wstring name;
    bool isLink;  ///< a junction or symbolic link, which may lead back up
};

/// What a directory holds, without the entries left out; each kind in ascending order regardless of
/// case.
struct DirectoryContents {
    std::vector<std::wstring> files;
    std::vector<Subdirectory> subdirectories;
};

/// Which files of a directory are wanted, by their names.
using FileFilter = std::function<bool(std::wstring_view name)>;

/// Reads a directory. Raises 70 or 76.
DirectoryContents listContents(Files& files, const std::wstring& directory,
                               const FileFilter& wanted);
