#pragma once

#include <optional>
#include <string>
#include <string_view>

/// A path made absolute from the given directory. One that is absolute already stays as it is.
std::wstring absolutePath(const std::wstring& path, const std::wstring& directory);

std::wstring fileNameOf(const std::wstring& path);
std::wstring directoryOf(const std::wstring& path);

/// Whether there is such a file; a directory is none. Long paths are understood.
bool fileExists(const std::wstring& path);

bool directoryExists(const std::wstring& path);

/// Whether the file has the attribute that forbids writing.
bool isReadOnly(const std::wstring& path);

/// Sets the file's modification date to now, its content untouched; false when that can't be.
bool touchFile(const std::wstring& path);

/// The document kinds, with the type codes that callers send.
enum class DocumentKind : long { Part = 1, Assembly = 2, Drawing = 3 };

/// The kind that a file's ending stands for, without regard to case.
std::optional<DocumentKind> kindOfFile(std::wstring_view path);

/// The kind's French name.
const wchar_t* kindName(DocumentKind kind);
