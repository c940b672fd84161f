#pragma once

#include <string>

/// A path made absolute from the given directory. One that is absolute already stays as it is.
std::wstring absolutePath(const std::wstring& path, const std::wstring& directory);

std::wstring fileNameOf(const std::wstring& path);
std::wstring directoryOf(const std::wstring& path);

/// Whether there is such a file; a directory is none. Long paths are understood.
bool fileExists(const std::wstring& path);

/// Sets the file's modification date to now, its content untouched; false when that can't be.
bool touchFile(const std::wstring& path);
