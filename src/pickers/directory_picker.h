#pragma once

#include <string>
#include <vector>

#include "pickers/directory_listing.h"

class Files;
class ListBox;

/// A list of the open directory's ancestors, the directory itself, and its sub-directories, each
/// level indented under the one above. The user opens another by a double click or Enter.
class DirectoryPicker {
 public:
    DirectoryPicker(ListBox& list, Files& files) : list_(list), files_(files) {}

    /// The open directory: a drive root with its trailing backslash, any other without one.
    const std::wstring& path() const { return path_; }

    /// Opens a directory. True when it is another one than before. Raises 70 or 76.
    bool setPath(const std::wstring& path);

    /// Opens the directory of the selected line. True when it is another one than before.
    bool openSelected();

    int subdirectoryCount() const { return static_cast<int>(subdirectories_.size()); }
    /// The full path of a sub-directory, zero-based.
    std::wstring subdirectory(int index) const;
    bool subdirectoryIsLink(int index) const;
    std::wstring parent() const;

 private:
    void show();

    ListBox& list_;
    Files& files_;
    std::wstring path_;
    std::vector<std::wstring> ancestors_;  // full paths, from the root to the open directory
    std::vector<Subdirectory> subdirectories_;
};
