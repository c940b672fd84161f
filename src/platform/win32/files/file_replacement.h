#pragma once

#include <windows.h>

#include <string>

#include "platform/files.h"

/// The Windows calls that a replacement is made of; a test makes them fail.
class FileCalls {
 public:
    virtual ~FileCalls() = default;
    virtual HANDLE create(const std::wstring& path);
    virtual bool write(HANDLE file, const char* bytes, DWORD count, DWORD& written);
    virtual bool flush(HANDLE file);
    virtual bool move(const std::wstring& from, const std::wstring& to);
};

/// Replaces a file whole: written beside it, flushed, then moved over it, so that at any moment
/// the path holds all of the old bytes or all of the new. Raises 70, 75 or 76, or lets through what
/// `write` throws, and then leaves the old file as it was and nothing beside it.
void replaceFile(const std::wstring& path, const WriteContent& write);
void replaceFile(const std::wstring& path, const WriteContent& write, FileCalls& calls);
