#pragma once

#include <optional>
#include <string>
#include <string_view>

/// A directory's path as the pickers report it: a drive root with its trailing backslash (c:\), any
/// other directory without one.
std::wstring reportedPath(std::wstring_view directory);

/// The path of an entry of a directory, with one backslash in between.
std::wstring childPath(const std::wstring& directory, std::wstring_view name);

/// The directory that holds this one; a root is its own parent.
std::wstring parentPath(const std::wstring& directory);

/// Whether it is the path of a drive root ("c:\").
bool isDriveRoot(std::wstring_view directory);

/// The full path that a name from a file stands for, relative to a directory. However the name was
/// spelled (slashes, "..", "\\?\UNC\..."), the path shows which drive or share it leads to. Nothing
/// where it names no more than a drive, a server or a share.
std::optional<std::wstring> resolvedPath(const std::wstring& directory, std::wstring_view name);

/// The server of a network path, in capitals; empty for a path on a drive.
std::wstring serverOf(std::wstring_view path);
