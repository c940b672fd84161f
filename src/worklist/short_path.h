#pragma once

#include <string>
#include <string_view>

/// "\" and `levels` times "..\"; empty for 0.
std::wstring upwards(int levels);

/// A path with its first directory levels, as many as `depth` at most, shown as "..\" behind the
/// drive. Empty when there is no level to hide: depth 0, a bare name, a file in a drive's root.
/// Raises 9 when the path has more than 16 backslashes before its last character.
std::wstring shortPath(int depth, std::wstring_view path);

/// Adds a path to a line as the lists show it: whole at depth 0, otherwise shortened. Raises 9 as
/// shortPath.
void addShownPath(std::wstring& line, std::wstring_view path, int depth);
