#pragma once

#include <string>

#include "win32/process/handles.h"

/// The file that records the calls received, one UTF-8 line each, readable while it is written.
class Journal {
 public:
    /// Starts the file afresh; false when it can't be created.
    bool open(const std::wstring& path);

    /// Appends a line; does nothing when no file was opened.
    void write(const std::wstring& line);

 private:
    UniqueHandle file_;
};
