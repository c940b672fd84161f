#pragma once

#include <string>

#include "win32/process/handles.h"

/// The file that records the calls received, one UTF-8 line each. It can be read at any time.
class Journal {
 public:
    /// Creates or empties the file; false when that fails.
    bool open(const std::wstring& path);

    /// Appends a line; does nothing when no file was opened.
    void write(const std::wstring& line);

 private:
    UniqueHandle file_;
};
