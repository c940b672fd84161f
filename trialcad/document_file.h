#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// A path made absolute, relative to the given directory. An absolute one stays as it is.
std::wstring absolutePath(const std::wstring& path, const std::wstring& directory);

std::wstring fileNameOf(const std::wstring& path);
std::wstring directoryOf(const std::wstring& path);

/// Whether there is such a file, and it is no directory. Takes long paths.
bool fileExists(const std::wstring& path);

bool directoryExists(const std::wstring& path);

/// Whether the file has the attribute that forbids writing.
bool isReadOnly(const std::wstring& path);

/// Sets the file's modification date to now, without touching its content; false when that fails.
bool touchFile(const std::wstring& path);

/// The document kinds, with the type codes that callers send.
enum class DocumentKind : std::int32_t { Part = 1, Assembly = 2, Drawing = 3 };

/// The kind of a file by its extension, in any case.
std::optional<DocumentKind> kindOfFile(std::wstring_view path);

/// The kind's French name.
const wchar_t* kindName(DocumentKind kind);
