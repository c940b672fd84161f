#pragma once

#include <windows.h>

#include <string>

/// The file that records the calls received, one UTF-8 line each, readable while it is written.
class Journal {
 public:
    Journal() = default;
    ~Journal();
    Journal(const Journal&) = delete;
    Journal& operator=(const Journal&) = delete;

    /// Starts the file afresh; false when it can't be created.
    bool open(const std::wstring& path);

    /// Appends a line; does nothing when no file was opened.
    void write(const std::wstring& line);

 private:
    HANDLE file_ = INVALID_HANDLE_VALUE;
};
