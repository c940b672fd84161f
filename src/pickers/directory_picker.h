#pragma once

#include <string>
#include <vector>

#include "pickers/tree_walk.h"

class ListBox;

/// A list of the open directory's ancestors, the directory itself, and its sub-directories, each
/// level indented under the one above. The user opens another by a double click or Enter.
class DirectoryPicker {
 public:
    DirectoryPicker(ListBox& list, const SearchServices& services)
        : list_(list), services_(services) {}

    /// The open directory: a drive root with its trailing backslash, any other without one.
    const std::wstring& path() const { return path_; }

    /// Opens a directory. True when it is another one than before; not when its user gave up
    /// waiting for it. Raises 70 or 76.
    bool setPath(const std::wstring& path);

    /// Opens the directory of the selected line. True when it is another one than before.
    bool openSelected();

 private:
    std::wstring pathOf(std::size_t line) const;
    void show();

    ListBox& list_;
    SearchServices services_;
    std::wstring path_;
    std::vector<std::wstring> ancestors_;  // full paths, from the root to the open directory
    std::vector<Subdirectory> subdirectories_;
};
