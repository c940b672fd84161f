#pragma once

#include <string>

/// A directory of its own among the temporary files, removed with all that is in it, whatever its
/// names, lengths and attributes.
class ScratchDirectory {
 public:
    ScratchDirectory();
    ~ScratchDirectory();
    ScratchDirectory(const ScratchDirectory&) = delete;
    ScratchDirectory& operator=(const ScratchDirectory&) = delete;

    const std::wstring& path() const { return path_; }

 private:
    std::wstring path_;
};
