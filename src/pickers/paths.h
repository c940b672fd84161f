#pragma once

#include <optional>
#include <string>
#include <string_view>

/// A directory's path as it is reported: a drive root with its trailing backslash (c:\), any
/// other directory without one.
std::wstring reportedPath(std::wstring_view directory);

/// The path of an entry of a directory, with one backslash between the two.
std::wstring childPath(const std::wstring& directory, std::wstring_view name);

/// The directory that holds this one; a root is its own parent.
std::wstring parentPath(const std::wstring& directory);

/// True for the path of a drive root ("c:\").
bool isDriveRoot(std::wstring_view directory);

/// The full path that a name written by anybody stands for, seen from a directory: on a drive or a
/// share, in plain form whatever way it was spelled (slashes, "..", "\\?\UNC\..."), so that it
/// shows where it leads. None for a server without a share.
std::optional<std::wstring> resolvedPath(const std::wstring& directory, std::wstring_view name);

/// The server of a network path, in capitals; empty for a path on a drive.
std::wstring serverOf(std::wstring_view path);
